#pragma once

#include "tree/FolderTreeError.h"

#include <QString>

#include <optional>

namespace tessarine {

// Whether a tree can be built for this root: an existing folder this process may list. A build
// turns any other root into an empty tree, which is right for a folder that vanishes while it is
// being read, but would hide a mistyped or unreadable root from whoever asked for its tree.
// Reads the disk: call it off the interface thread.
std::optional<FolderTreeError> unlistableRootError(const QString& rootPath);

} // namespace tessarine
