#pragma once

#include "model/FolderSizes.h"
#include "model/Records.h"

namespace tessarine {

// The folder sizes of a scan that arrived with its folder tree instead of a walk here, kept by the
// same rule as a scan's (FolderSizeTally), so that an import compares folder by folder with a
// later import or scan of that folder.
FolderSizes folderSizesOfTree(const FolderInfo& tree);

} // namespace tessarine
