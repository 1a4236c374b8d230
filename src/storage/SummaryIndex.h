#pragma once

#include "storage/HistoryCatalog.h"

#include <QString>

namespace tessarine {

// The summary index: the catalog of the history folder kept in the hidden file ".summary-index"
// inside it, so that a start reads one file instead of every stored scan. It is a cache and never
// trusted: each entry counts only while its history file has the same name and stamp, and an
// index that is missing, cut short, damaged or written by another version reads as empty, which
// only costs a start the reading of every file. It lives beside the history so that whoever keeps
// the history (the app, the command line, another instance) shares it and it goes with the folder.
//
// Layout (QDataStream, Qt 6.4, big-endian): the magic "TSIX", the format version, the payload as a
// byte array, and the payload's SHA-1. The payload is the entry count, then per entry the file
// name, size, modification and change times in nanoseconds, inode, and either true and the
// summary (id, scan date in milliseconds since the epoch, root path and name, total size, files,
// folders, depth, duration, then whether it was imported and if so the program, file name, import
// date in milliseconds and the fields the file did not give) or false and the reason the file
// could not be read.
QString summaryIndexPath(const QString& historyFolder);
CatalogEntries readSummaryIndex(const QString& historyFolder);
// Replaces the index in one rename; says whether it could.
bool writeSummaryIndex(const QString& historyFolder, const CatalogEntries& entries);

} // namespace tessarine
