#pragma once

#include "FileTrees.h"

#include <QString>

namespace tessarine::testing {

// A small folder worth scanning below `root`: a few files in nested folders, `fileCount` in all.
void makeScannableFolder(const QString& root, int fileCount = 6);

} // namespace tessarine::testing
