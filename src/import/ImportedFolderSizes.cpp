#include "import/ImportedFolderSizes.h"

#include "model/PathBytes.h"
#include "scanner/FolderSizeTally.h"

#include <deque>

namespace tessarine {

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
        tally.addFiles(depth + 1, folder->directFilesSize(), folder->directFileCount());
        for (auto child = folder->childFolders.rbegin(); child != folder->childFolders.rend();
             ++child)
            pending.emplace_back(&*child, depth + 1);
    }
    return tally.finish();
}

} // namespace tessarine
