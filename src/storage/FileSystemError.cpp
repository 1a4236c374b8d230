#include "storage/FileSystemError.h"

namespace tessarine {

FileSystemError FileSystemError::about(QStringView failedAction, const QString& path,
                                       const QString& reason) {
    return {QStringLiteral("Could not %1 \"%2\": %3").arg(failedAction, path, reason)};
}

} // namespace tessarine
