#include "charts/geometry/FolderBars.h"

#include "model/SaturatingSum.h"

namespace tessarine {

FolderBars folderBarsOf(const FolderInfo& tree, qsizetype maxFolders) {
    FolderBars bars;
    const std::vector<const FolderInfo*> walk = tree.flattened();
    // The walk starts with the root itself.
    for (auto folder = walk.begin() + 1; folder != walk.end(); ++folder) {
        ++bars.folderCount;
        if (static_cast<qsizetype>(bars.shown.size()) < maxFolders) {
            bars.shown.push_back(*folder);
            addSaturating(bars.shownSize, (*folder)->totalSize);
        }
    }
    return bars;
}

} // namespace tessarine
