#include "storage/PersistenceError.h"

namespace tessarine {

QString PersistenceError::errorDescription() const {
    switch (kind) {
    case Kind::directoryNotAccessible:
        return underlying ? QStringLiteral("Storage directory not accessible: ") + *underlying
                          : QStringLiteral("Storage directory not accessible");
    case Kind::encodingFailed:
        return QStringLiteral("Failed to encode data");
    case Kind::decodingFailed:
        return QStringLiteral("Failed to decode data");
    case Kind::fileNotFound:
        return QStringLiteral("File not found");
    }
    Q_UNREACHABLE();
    return {};
}

} // namespace tessarine
