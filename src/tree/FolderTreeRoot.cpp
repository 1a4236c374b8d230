#include "tree/FolderTreeRoot.h"

#include "scanner/PathAccess.h"

namespace tessarine {

std::optional<FolderTreeError> unlistableRootError(const QString& rootPath) {
    if (isListableFolder(rootPath))
        return std::nullopt;
    return FolderTreeError{FolderTreeError::Kind::accessDenied, rootPath};
}

} // namespace tessarine
