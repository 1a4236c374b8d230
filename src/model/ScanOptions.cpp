#include "model/ScanOptions.h"

namespace tessarine {

QStringList ScanOptions::labels() const {
    QStringList on;
    if (includeHidden)
        on.append(QStringLiteral("hidden items included"));
    if (oneFileSystem)
        on.append(QStringLiteral("one file system"));
    if (diskUsage)
        on.append(QStringLiteral("disk usage"));
    return on;
}

} // namespace tessarine
