#include "storage/ExportWriter.h"

#include "storage/CompleteWrite.h"

#include <QFile>
#include <QSaveFile>

#include <sys/stat.h>

namespace tessarine {

namespace {

bool isDeviceOrPipe(const QString& path) {
    struct stat status;
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 && !S_ISREG(status.st_mode) &&
           !S_ISDIR(status.st_mode);
}

StorageError writeError(const QString& path, const QFileDevice& file) {
    return StorageError{FileSystemError::about(u"write", path, file.errorString())};
}

} // namespace

std::optional<StorageError> writeExport(const QString& path, const QByteArray& bytes) {
    if (isDeviceOrPipe(path)) {
        QFile device(path);
        if (openAndWriteCompletely(device, bytes))
            return std::nullopt;
        return writeError(path, device);
    }
    QSaveFile file(path);
    if (openAndWriteCompletely(file, bytes) && file.commit())
        return std::nullopt;
    return writeError(path, file);
}

} // namespace tessarine
