#include "charts/geometry/CategoryTreemapLayout.h"

#include "model/SaturatingSum.h"

#include <algorithm>

namespace tessarine {

std::vector<TreeMapRect> calculateTreeMapRects(const QList<CategoryStats>& categories,
                                               qint64 totalSize, const QRectF& bounds) {
    std::vector<TreeMapRect> rects;
    if (categories.isEmpty() || totalSize < 1)
        return rects;

    QList<CategoryStats> sorted = categories;
    std::stable_sort(
        sorted.begin(), sorted.end(),
        [](const CategoryStats& a, const CategoryStats& b) { return a.totalSize > b.totalSize; });

    bool horizontal = bounds.height() < bounds.width();
    qint64 remaining = totalSize;
    QRectF free = bounds;
    rects.reserve(sorted.size());
    for (qsizetype i = 0; i < sorted.size(); ++i) {
        const CategoryStats& stat = sorted[i];
        // A negative size (a damaged stored result) takes no room.
        const qint64 size = std::max<qint64>(stat.totalSize, 0);
        // With nothing left to share the ratio is 0/0; such a cell has no size to show. Nor does a
        // cell take more than what is left, where the categories add up to more than the total.
        const double ratio =
            remaining > 0
                ? std::min(static_cast<double>(size) / static_cast<double>(remaining), 1.0)
                : 0.0;
        // The free area moves by the true extent so that the clamp never pushes later cells out.
        if (horizontal) {
            const double extent = ratio * free.width();
            rects.push_back(
                {stat, QRectF(free.x(), free.y(), std::max(extent, 1.0), free.height())});
            free = QRectF(free.x() + extent, free.y(), std::max(free.width() - extent, 0.0),
                          free.height());
        } else {
            const double extent = ratio * free.height();
            rects.push_back(
                {stat, QRectF(free.x(), free.y(), free.width(), std::max(extent, 1.0))});
            free = QRectF(free.x(), free.y() + extent, free.width(),
                          std::max(free.height() - extent, 0.0));
        }
        addSaturating(remaining, -size);
        if ((sorted.size() - i - 1) % 2 == 0)
            horizontal = !horizontal;
    }
    return rects;
}

} // namespace tessarine
