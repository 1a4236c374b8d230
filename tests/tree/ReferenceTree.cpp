#include "ReferenceTree.h"
#include "FileTrees.h"

#include "model/PathBytes.h"
#include "scanner/ItemNameRules.h"

#include <QFileInfo>

#include <algorithm>
#include <dirent.h>
#include <sys/stat.h>
#include <vector>

namespace tessarine::testing {

namespace {

FolderInfo folderNode(const QByteArray& path, const QString& name, qint64 depth, qint64 colourIndex,
                      HardLinkCount& links) {
    FolderInfo node;
    node.location = FolderPath(pathFromBytes(path));
    node.name = name;
    node.depth = depth;
    node.color = folderColorAt(colourIndex);
    DIR* dir = opendir(path.constData());
    if (!dir)
        return node;
    std::vector<QByteArray> names;
    while (const dirent* entry = readdir(dir)) {
        if (!isHiddenName(entry->d_name))
            names.emplace_back(entry->d_name);
    }
    closedir(dir);
    qint64 subfolders = 0;
    for (const QByteArray& entryName : names) {
        const QByteArray entryPath = path + '/' + entryName;
        struct stat status;
        const bool known = lstat(entryPath.constData(), &status) == 0;
        if (known && S_ISDIR(status.st_mode) && !isPackageName(entryName)) {
            FolderInfo child =
                folderNode(entryPath, pathFromBytes(entryName), depth + 1, subfolders++, links);
            if (child.totalSize < 1 && child.childFolders.empty())
                continue;
            node.totalSize += child.totalSize;
            node.fileCount += child.fileCount;
            node.childFolders.push_back(std::move(child));
        } else {
            node.totalSize += known ? links.sizeAt(status) : 0;
            node.fileCount += 1;
        }
    }
    std::stable_sort(
        node.childFolders.begin(), node.childFolders.end(),
        [](const FolderInfo& a, const FolderInfo& b) { return a.totalSize > b.totalSize; });
    return node;
}

} // namespace

FolderInfo referenceTree(const QString& root) {
    HardLinkCount links;
    return folderNode(pathToBytes(root), QFileInfo(root).fileName(), 0, 0, links);
}

FolderInfo withoutIds(FolderInfo tree) {
    tree.id = QUuid();
    for (FolderInfo& child : tree.childFolders)
        child = withoutIds(std::move(child));
    return tree;
}

} // namespace tessarine::testing
