#pragma once

#include "model/ScanOptions.h"

#include <QString>

namespace tessarine::cli {

// `tree FOLDER --ncdu`: walks the folder as the folder tree does, with the same options, and
// prints every entry as an ncdu export; Ctrl-C cancels. Gives the exit status.
int writeNcduTree(const QString& rootPath, const ScanOptions& options);

} // namespace tessarine::cli
