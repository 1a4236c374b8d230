#include "import/ImportedFolderSizes.h"

#include "model/PathBytes.h"
#include "model/SaturatingSum.h"
#include "scanner/FolderSizeTally.h"

#include <deque>
#include <numeric>

namespace tessarine {

namespace {

qint64 directFileCount(const FolderInfo& folder) {
    return std::max<qint64>(
        std::accumulate(folder.childFolders.begin(), folder.childFolders.end(), folder.fileCount,
                        [](qint64 rest, const FolderInfo& child) {
                            return saturatingAdd(rest, -std::max<qint64>(child.fileCount, 0));
                        }),
        0);
}

} // namespace

FolderSizes folderSizesOfTree(const FolderInfo& tree) {
    FolderSizeTally tally;
    // The tally keeps views of the names until it is finished; a deque never moves them.
    std::deque<QByteArray> names;
    // Depth first, a folder before its contents, as the tally meets a listing; the depth counts
    // from the tree's root, which is the scanned folder.
    std::vector<std::pair<const FolderInfo*, qint64>> pending{{&tree, 0}};
    while (!pending.empty()) {
        const auto [folder, depth] = pending.back();
        pending.pop_back();
        if (depth > 0)
            tally.addFolder(depth, names.emplace_back(pathToBytes(folder->name)));
        tally.addFiles(depth + 1, folder->directFilesSize(), directFileCount(*folder));
        for (auto child = folder->childFolders.rbegin(); child != folder->childFolders.rend();
             ++child)
            pending.emplace_back(&*child, depth + 1);
    }
    return tally.finish();
}

} // namespace tessarine
