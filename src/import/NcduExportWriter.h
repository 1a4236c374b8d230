#pragma once

#include "scanner/DirectoryListing.h"

#include <QByteArrayView>
#include <QString>

#include <functional>

namespace tessarine {

// Writes a walk's listing as an ncdu JSON export (format 1.2), so that `ncdu -f` browses a
// folder as Tessarine counted it: every sum ncdu makes from it equals the folder tree's. Hence
// each entry carries the size Tessarine counted: a later name of a hard-linked file 0 bytes, a
// symbolic link its own size. The disk usage ncdu shows by default is written equal to that size,
// as a walk reads no block counts. Packages appear as empty folders (their contents were never
// read), folders that could not be opened with ncdu's read_error. Names keep their bytes, as ncdu
// writes them. The text goes to `sink` in pieces; false as soon as it refuses one.
bool writeNcduExport(const DirectoryListing& listing, const QString& program,
                     const std::function<bool(QByteArrayView)>& sink);

} // namespace tessarine
