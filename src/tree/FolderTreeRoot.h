#pragma once

#include "tree/FolderTreeService.h"

#include <QString>

#include <optional>

namespace tessarine {

// Whether a tree can be built for this root: an existing folder this process may list. A build
// turns any other root into an empty tree, which is right for a folder that vanishes while it is
// being read, but would hide a mistyped or unreadable root from whoever asked for its tree.
// Reads the disk: call it off the interface thread.
std::optional<FolderTreeError> unlistableRootError(const QString& rootPath);

// The build's outcome, or the root's error when the tree came back empty because its root could
// not be listed. Asked after the build rather than before it: the build's walk names a root that
// keeps it waiting (a hung mount), where a question before it would wait without a word.
FolderTreeOutcome withRootError(FolderTreeOutcome outcome, const QString& rootPath);

} // namespace tessarine
