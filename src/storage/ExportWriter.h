#pragma once

#include "storage/StorageError.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessarine {

// Writes an export file where the user chose, replacing whatever is there. A plain write, not an
// atomic one: the destination may be on a volume where a temporary file beside it is not allowed,
// and a failed export may leave a partial file, which the user sees in the error.
std::optional<StorageError> writeExport(const QString& path, const QByteArray& bytes);

} // namespace tessarine
