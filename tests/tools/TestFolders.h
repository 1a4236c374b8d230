#pragma once

#include <QString>

namespace tessarine::test {

// Writes a file of exactly size bytes, creating the folders above it.
void writeFile(const QString& path, qint64 size);

// Fills root with folders × filesPerFolder small files: enough work for a scan or a tree build
// to be caught in the middle.
void writeManyFiles(const QString& root, int folders, int filesPerFolder);

} // namespace tessarine::test
