#pragma once

#include "charts/geometry/FolderTreemapLayout.h"

#include <QRectF>

#include <memory>
#include <vector>

namespace tessarine {

// How deep the folder treemap nests and how much room a nesting cell's label row takes.
struct NestedTreemapMetrics {
    qint64 maxDepth = 3;
    double labelRowHeight = 16;
};

// One cell of the nested treemap in the coordinates of the top level's bounds. level is 0 for the
// current folder's items, one more per nesting; parent is the index of the enclosing cell, or -1.
struct NestedTreemapCell {
    TreemapItem item;
    qint64 level = 0;
    qsizetype parent = -1;
    bool nests = false;
};

// Every cell of a nested treemap, each level after the cells it lies in, so that drawing in order
// puts inner cells on top and a hit test from the back finds the innermost cell. Keeps the
// synthetic "Files" folders the cells point at.
struct NestedTreemap {
    std::vector<NestedTreemapCell> cells;
    std::vector<std::unique_ptr<const FolderInfo>> filesFolders;
};

// Whether a cell at level shows its folder's own contents inside it: only above the last level,
// for a folder with sub-folders, and when the cell is large enough to read (over 60 x 50 points).
bool nestsContents(const TreemapItem& item, qint64 level, qint64 maxDepth);

// The area a nesting cell leaves for its contents: inside its 1-point gap and 3-point padding,
// below its label row. Never negative.
QRectF nestedContentRect(const QRectF& cell, double labelRowHeight);

// The folder's treemap in bounds with the levels below it, nested up to metrics.maxDepth levels.
// Only that many levels are visited, however deep the tree.
NestedTreemap layoutNestedTreemap(const FolderInfo& folder, const QRectF& bounds,
                                  const NestedTreemapMetrics& metrics = {});

} // namespace tessarine
