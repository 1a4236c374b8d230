#pragma once

#include "model/Records.h"

#include <QRectF>

#include <memory>
#include <span>
#include <vector>

namespace tessarine {

// What one level of the folder treemap shares out: a sub-folder, or the bytes lying directly in
// the folder (isFiles).
struct TreemapEntry {
    const FolderInfo* folder = nullptr;
    qint64 size = 0;
    bool isFiles = false;
};

// One laid-out rectangle of a level. colorIndex picks the folder palette entry (index mod 12).
struct TreemapItem {
    const FolderInfo* folder = nullptr;
    QRectF rect;
    bool isFiles = false;
    qint64 colorIndex = 0;
};

// The items of one level. A "Files" item points at the synthetic folder held here, which lives as
// long as the level does.
struct TreemapLevel {
    std::vector<TreemapItem> items;
    std::unique_ptr<const FolderInfo> files;
};

// The palette index of the "Files" item; folder items cycle through the first ten.
constexpr qint64 filesColorIndex = 11;

// The stand-in for the files lying directly in folder, so they can be shown beside its
// sub-folders: named "Files", one level deeper, in cyan, with the files its sub-folders do not
// count.
FolderInfo filesFolderOf(const FolderInfo& folder);

// The level showing folder's contents in bounds: its sub-folders in stored order plus a "Files"
// entry for its direct files, largest first (ties keep that order), laid out as below. A folder
// without sub-folders fills bounds alone.
TreemapLevel buildTreemapItems(const FolderInfo& folder, const QRectF& bounds,
                               qint64 baseColorIndex);

// A squarified layout in strips: each strip takes leading entries while that keeps its cells
// nearer to square, and runs down the left while the free area is at least as wide as high,
// across the top otherwise. The strips are chosen on the free area but sized on bounds, as the
// treemap always has been drawn: once the free area shrinks the other way, the strips cover less
// than their share. Cells are at least 2 points thick so that a tiny folder still shows as a line.
std::vector<TreemapItem> layoutTreemapItems(std::span<const TreemapEntry> entries,
                                            const QRectF& bounds, qint64 baseColorIndex);

} // namespace tessarine
