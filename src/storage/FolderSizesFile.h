#pragma once

#include "model/FolderSizes.h"
#include "storage/StorageError.h"

#include <QString>
#include <QUuid>

#include <optional>

namespace tessarine {

// The folder sizes of a stored scan live beside its history file, as "scan_<UUID>.folders" in the
// history folder. The history file stays the scan: listing the history never reads these, and a
// scan without one (saved before folder sizes were kept, or its file lost) simply has no folder
// figures.
QString folderSizesPath(const QString& historyFolder, const QUuid& id);

// Written atomically, like the history file, so a reader never meets half a table.
std::optional<StorageError> saveFolderSizes(const QString& historyFolder, const QUuid& id,
                                            const FolderSizes& sizes);

// None when the file is missing, unreadable or damaged in any way: never an error to report.
std::optional<FolderSizes> loadFolderSizes(const QString& historyFolder, const QUuid& id);

// One that is already gone is not an error.
std::optional<StorageError> removeFolderSizes(const QString& historyFolder, const QUuid& id);

} // namespace tessarine
