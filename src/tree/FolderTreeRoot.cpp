#include "tree/FolderTreeRoot.h"

#include "scanner/PathAccess.h"

namespace tessarine {

std::optional<FolderTreeError> unlistableRootError(const QString& rootPath) {
    if (isListableFolder(rootPath))
        return std::nullopt;
    return FolderTreeError{FolderTreeError::Kind::accessDenied, rootPath};
}

FolderTreeOutcome withRootError(FolderTreeOutcome outcome, const QString& rootPath) {
    const auto* tree = std::get_if<FolderInfo>(&outcome);
    if (!tree || tree->fileCount > 0 || !tree->childFolders.empty())
        return outcome;
    if (std::optional<FolderTreeError> error = unlistableRootError(rootPath))
        return *error;
    return outcome;
}

} // namespace tessarine
