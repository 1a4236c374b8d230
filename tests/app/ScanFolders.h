#pragma once

#include <QString>

namespace tessarine::testing {

// Writes a file of `size` bytes at `path`, creating missing parent folders.
void writeFile(const QString& path, qint64 size);

// A small folder worth scanning below `root`: a few files in nested folders, `fileCount` in all.
void makeScannableFolder(const QString& root, int fileCount = 6);

} // namespace tessarine::testing
