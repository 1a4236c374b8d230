#include "AppErrorFactory.h"

namespace tessarine {

AppError AppErrorFactory::invalidPath(const QString& path) const {
    return AppError::invalidPath(path);
}

AppError AppErrorFactory::exportFailed(const QString& underlyingDescription) const {
    return AppError::exportFailed(underlyingDescription);
}

} // namespace tessarine
