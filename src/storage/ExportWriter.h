#pragma once

#include "storage/StorageError.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessarine {

// Writes an export file where the user chose, replacing whatever is there. The bytes go to a
// temporary file beside the destination that is renamed over it once complete, so a full disk or
// a read-only folder leaves no partial export behind and an earlier file at that place intact.
// A device or pipe (a terminal, a FIFO) is written to directly: it cannot be renamed over.
std::optional<StorageError> writeExport(const QString& path, const QByteArray& bytes);

} // namespace tessarine
