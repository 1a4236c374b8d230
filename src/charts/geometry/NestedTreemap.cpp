#include "charts/geometry/NestedTreemap.h"

#include <algorithm>
#include <deque>

namespace tessarine {

namespace {

constexpr double cellGap = 1;
constexpr double nestingPadding = 3;

// A level still to lay out: the contents of the folder of cell parent.
struct PendingLevel {
    const FolderInfo* folder;
    QRectF bounds;
    qint64 level;
    qint64 baseColorIndex;
    qsizetype parent;
};

} // namespace

bool nestsContents(const TreemapItem& item, qint64 level, qint64 maxDepth) {
    return level < maxDepth - 1 && !item.folder->childFolders.empty() && item.rect.width() > 60 &&
           item.rect.height() > 50;
}

QRectF nestedContentRect(const QRectF& cell, double labelRowHeight) {
    const double inset = cellGap + nestingPadding;
    return QRectF(cell.x() + inset, cell.y() + inset + labelRowHeight,
                  std::max(cell.width() - 2 * inset, 0.0),
                  std::max(cell.height() - 2 * inset - labelRowHeight, 0.0));
}

NestedTreemap layoutNestedTreemap(const FolderInfo& folder, const QRectF& bounds,
                                  const NestedTreemapMetrics& metrics) {
    NestedTreemap treemap;
    // Breadth first with a work list, so no call depth grows with the tree.
    std::deque<PendingLevel> pending{{&folder, bounds, 0, 0, -1}};
    while (!pending.empty()) {
        const PendingLevel next = pending.front();
        pending.pop_front();
        // Each level is laid out in its own frame and moved into place.
        const QRectF local(0, 0, next.bounds.width(), next.bounds.height());
        TreemapLevel level = buildTreemapItems(*next.folder, local, next.baseColorIndex);
        for (TreemapItem& item : level.items) {
            item.rect.translate(next.bounds.topLeft());
            const bool nests = nestsContents(item, next.level, metrics.maxDepth);
            treemap.cells.push_back({item, next.level, next.parent, nests});
            if (nests) {
                pending.push_back({item.folder,
                                   nestedContentRect(item.rect, metrics.labelRowHeight),
                                   next.level + 1, item.colorIndex + 1,
                                   static_cast<qsizetype>(treemap.cells.size() - 1)});
            }
        }
        if (level.files)
            treemap.filesFolders.push_back(std::move(level.files));
    }
    return treemap;
}

} // namespace tessarine
