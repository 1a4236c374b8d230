#include "storage/ExportWriter.h"

#include <QFile>

namespace tessarine {

std::optional<StorageError> writeExport(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    // A full disk often shows only when the buffer is flushed, so every step is checked.
    const bool written = file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                         file.write(bytes) == bytes.size() && file.flush();
    if (!written)
        return StorageError{FileSystemError::about(u"write", path, file.errorString())};
    return std::nullopt;
}

} // namespace tessarine
