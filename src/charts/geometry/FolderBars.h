#pragma once

#include "model/Records.h"

#include <vector>

namespace tessarine {

// What the "Largest Folders" chart shows of a tree: the first folders of its walk below the root,
// parents before children and siblings largest first as the tree stores them. Not re-sorted, so
// these are the largest branches, not the largest folders overall.
struct FolderBars {
    std::vector<const FolderInfo*> shown;
    // Every folder below the root, shown or not.
    qint64 folderCount = 0;
    // The bytes of the shown folders together (nested ones count again inside their parents).
    qint64 shownSize = 0;
};

FolderBars folderBarsOf(const FolderInfo& tree, qsizetype maxFolders);

} // namespace tessarine
