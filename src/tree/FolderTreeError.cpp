#include "tree/FolderTreeError.h"

namespace tessarine {

QString FolderTreeError::errorDescription() const {
    switch (kind) {
    case Kind::accessDenied:
        return QStringLiteral("Cannot access: ") + path;
    case Kind::cancelled:
        return QStringLiteral("Folder tree building was cancelled");
    }
    Q_UNREACHABLE();
    return {};
}

} // namespace tessarine
