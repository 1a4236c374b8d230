#include "tree/FolderTreeRoot.h"

#include <QFileInfo>

namespace tessarine {

std::optional<FolderTreeError> unlistableRootError(const QString& rootPath) {
    const QFileInfo folder(rootPath);
    if (folder.isDir() && folder.isReadable() && folder.isExecutable())
        return std::nullopt;
    return FolderTreeError{FolderTreeError::Kind::accessDenied, rootPath};
}

} // namespace tessarine
