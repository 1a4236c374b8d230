#pragma once

#include "charts/TreemapCell.h"
#include "charts/geometry/CategoryTreemapLayout.h"
#include "charts/geometry/NestedTreemap.h"

#include <optional>
#include <vector>

namespace tessarine {

// The category treemap's cells: each in its category's colour, 1 point inside its laid-out
// rectangle so neighbours stay apart, brighter when hovered, and outlined in white when it is
// the selected category. Each is spoken as "<name> category" with its share of totalSize.
QList<TreemapCell> categoryTreemapCells(const std::vector<TreeMapRect>& rects, qint64 totalSize,
                                        std::optional<FileCategory> selected);

// The folder treemap's cells, outer levels first: each in its palette colour, 1 point inside its
// laid-out rectangle, with a faint dark outline that turns white and thicker when hovered. A cell
// showing its contents stays evenly tinted so the nested level reads on top of it. Each is spoken
// by its folder's name with its share of shownSize, the size of the folder the treemap shows.
QList<TreemapCell> folderTreemapCells(const NestedTreemap& treemap, qint64 shownSize);

} // namespace tessarine
