#include "scanner/ScanError.h"

namespace tessarine {

QString ScanError::errorDescription() const {
    switch (kind) {
    case Kind::cannotAccessDirectory:
        return QStringLiteral("Cannot access directory: ") + path;
    case Kind::permissionDenied:
        return QStringLiteral("Permission denied: ") + path;
    case Kind::cancelled:
        break;
    }
    return QStringLiteral("Scan was cancelled");
}

} // namespace tessarine
