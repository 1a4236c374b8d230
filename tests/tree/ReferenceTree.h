#pragma once

#include "model/Records.h"

#include <QString>

namespace tessarine::testing {

// The folder tree of `root` made the plainest way: a recursive opendir/readdir/lstat walk that
// lists each folder when it gets to it, sums its files, drops empty sub-folders, colours by
// listing position and sorts largest first. What the service must give for a tree that does not
// change meanwhile. Only for shallow test trees: it recurses.
FolderInfo referenceTree(const QString& root);

// The tree with every id cleared, so that two builds of the same folders compare equal.
FolderInfo withoutIds(FolderInfo tree);

} // namespace tessarine::testing
