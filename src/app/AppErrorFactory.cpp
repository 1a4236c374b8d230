#include "AppErrorFactory.h"

namespace tessarine {

ErrorHandle AppErrorFactory::scanFailed(const QString& underlyingDescription) const {
    return AppError::scanFailed(underlyingDescription);
}

ErrorHandle AppErrorFactory::permissionDenied(const QString& path) const {
    return AppError::permissionDenied(path);
}

ErrorHandle AppErrorFactory::invalidPath(const QString& path) const {
    return AppError::invalidPath(path);
}

ErrorHandle AppErrorFactory::saveFailed(const QString& underlyingDescription) const {
    return AppError::saveFailed(underlyingDescription);
}

ErrorHandle AppErrorFactory::loadFailed(const QString& underlyingDescription) const {
    return AppError::loadFailed(underlyingDescription);
}

ErrorHandle AppErrorFactory::exportFailed(const QString& underlyingDescription) const {
    return AppError::exportFailed(underlyingDescription);
}

ErrorHandle AppErrorFactory::unknown(const QString& message) const {
    return AppError::unknown(message);
}

ErrorHandle AppErrorFactory::cancelled() const {
    return AppError::cancelled();
}

ErrorHandle AppErrorFactory::none() const {
    return {};
}

} // namespace tessarine
