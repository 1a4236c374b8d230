#include "import/ImportError.h"

namespace tessarine {

QString ImportError::errorDescription() const {
    switch (kind) {
    case Kind::cannotRead:
        return QStringLiteral("Cannot read the import file: ") + detail;
    case Kind::notAScan:
        return QStringLiteral("Not an ncdu export or a Tessarine result: ") + detail;
    case Kind::malformed:
        return QStringLiteral("Invalid import file: ") + detail;
    case Kind::empty:
        return QStringLiteral("Nothing to import: the scan of %1 holds no visible item")
            .arg(detail);
    }
    return detail;
}

} // namespace tessarine
