#include "model/Format.h"

#include <cmath>
#include <limits>

namespace tessarine::format {

namespace {

// Whole seconds, truncated toward zero, safe for any double.
qint64 wholeSeconds(double seconds) {
    if (std::isnan(seconds))
        return 0;
    constexpr double limit = double(std::numeric_limits<qint64>::max());
    if (std::abs(seconds) >= limit)
        return seconds < 0 ? std::numeric_limits<qint64>::min()
                           : std::numeric_limits<qint64>::max();
    return qint64(seconds);
}

// "2m 5s": whole minutes and the leftover seconds, neither padded.
QString minutesAndSeconds(double seconds) {
    const qint64 whole = wholeSeconds(seconds);
    return QStringLiteral("%1m %2s").arg(whole / 60).arg(whole - 60 * (whole / 60));
}

} // namespace

QString duration(double seconds) {
    if (seconds < 1)
        return QString::asprintf("%.0f ms", seconds * 1000);
    if (seconds < 60)
        return QString::asprintf("%.1f seconds", seconds);
    return minutesAndSeconds(seconds);
}

QString compactDuration(double seconds) {
    if (seconds < 1)
        return QStringLiteral("< 1s");
    if (seconds < 60)
        return QString::asprintf("%.0fs", seconds);
    return minutesAndSeconds(seconds);
}

} // namespace tessarine::format
