#pragma once

#include "model/Records.h"

#include <QList>
#include <QRectF>

#include <vector>

namespace tessarine {

// One laid-out category of the category treemap; y grows downward from the area's top-left.
struct TreeMapRect {
    CategoryStats stat;
    QRectF rect;
};

// Slices each category, largest first, off the left or the top of the free area, turning whenever
// an even number of categories is left, so that the last cells stay roughly square instead of
// thinning into slivers. Shares are of totalSize, which may exceed the categories' sum: the rest
// of the area then stays empty. A cell is at least 1 point thick so that a tiny category can still
// be hovered. Ties keep the order given.
std::vector<TreeMapRect> calculateTreeMapRects(const QList<CategoryStats>& categories,
                                               qint64 totalSize, const QRectF& bounds);

} // namespace tessarine
