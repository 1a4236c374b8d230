#include "screens/scanning/Throughput.h"

namespace tessarine {

QString formatThroughput(qint64 bytesPerSecond) {
    constexpr qint64 kilo = 1024;
    constexpr qint64 mega = kilo * kilo;
    constexpr qint64 giga = mega * kilo;
    if (bytesPerSecond < kilo)
        return QStringLiteral("%1 B").arg(bytesPerSecond);
    const double kilobytes = double(bytesPerSecond) / kilo;
    if (bytesPerSecond >= giga)
        return QString::asprintf("%.2f GB", kilobytes / kilo / kilo);
    if (bytesPerSecond >= mega)
        return QString::asprintf("%.1f MB", kilobytes / kilo);
    return QString::asprintf("%.1f KB", kilobytes);
}

} // namespace tessarine
