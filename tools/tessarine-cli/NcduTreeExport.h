#pragma once

#include <QString>

namespace tessarine::cli {

// `tree FOLDER --ncdu`: walks the folder as the folder tree does and prints every entry as an
// ncdu export; Ctrl-C cancels. Gives the exit status.
int writeNcduTree(const QString& rootPath);

} // namespace tessarine::cli
