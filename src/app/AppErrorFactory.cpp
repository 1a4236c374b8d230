#include "AppErrorFactory.h"

namespace tessarine {

AppError AppErrorFactory::scanFailed(const QString& underlyingDescription) const {
    return AppError::scanFailed(underlyingDescription);
}

AppError AppErrorFactory::permissionDenied(const QString& path) const {
    return AppError::permissionDenied(path);
}

AppError AppErrorFactory::invalidPath(const QString& path) const {
    return AppError::invalidPath(path);
}

AppError AppErrorFactory::saveFailed(const QString& underlyingDescription) const {
    return AppError::saveFailed(underlyingDescription);
}

AppError AppErrorFactory::loadFailed(const QString& underlyingDescription) const {
    return AppError::loadFailed(underlyingDescription);
}

AppError AppErrorFactory::exportFailed(const QString& underlyingDescription) const {
    return AppError::exportFailed(underlyingDescription);
}

AppError AppErrorFactory::unknown(const QString& message) const {
    return AppError::unknown(message);
}

AppError AppErrorFactory::cancelled() const {
    return AppError::cancelled();
}

} // namespace tessarine
