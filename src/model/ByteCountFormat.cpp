#include "model/Format.h"

#include <QLocale>

#include <array>

namespace tessarine::format {

namespace {

struct ByteUnit {
    const char* name;
    int decimals; // shown at most; trailing zeros are dropped
};

// Decimal units, as file managers show sizes: the larger the unit, the more a decimal matters.
constexpr std::array<ByteUnit, 6> units = {{
    {"KB", 0},
    {"MB", 1},
    {"GB", 2},
    {"TB", 2},
    {"PB", 2},
    {"EB", 2},
}};

constexpr quint64 powerOfTen(int exponent) {
    quint64 power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

// The magnitude in steps of the unit's last shown decimal, rounded half up. Integer arithmetic
// keeps values such as 1,005,000,000 bytes from rounding the wrong way through a binary double.
quint64 roundedSteps(quint64 magnitude, quint64 unitBytes, int decimals) {
    const quint64 step = unitBytes / powerOfTen(decimals);
    return magnitude / step + ((magnitude % step) * 2 >= step ? 1 : 0);
}

} // namespace

QString byteCount(qint64 bytes) {
    if (bytes == 0)
        return QStringLiteral("Zero KB");
    const QLocale locale;
    const QString sign = bytes < 0 ? locale.negativeSign() : QString();
    // Through unsigned arithmetic so that the most negative value has a magnitude too.
    const quint64 magnitude = bytes < 0 ? quint64(0) - quint64(bytes) : quint64(bytes);
    if (magnitude < 1000)
        return sign + locale.toString(magnitude) +
               (magnitude == 1 ? QStringLiteral(" byte") : QStringLiteral(" bytes"));

    std::size_t unit = 0;
    quint64 unitBytes = 1000;
    while (unit + 1 < units.size() && magnitude / unitBytes >= 1000) {
        unitBytes *= 1000;
        ++unit;
    }
    quint64 steps = roundedSteps(magnitude, unitBytes, units[unit].decimals);
    // 999,999 bytes is 1000 KB once rounded, which reads better as 1 MB.
    if (unit + 1 < units.size() && steps >= 1000 * powerOfTen(units[unit].decimals)) {
        unitBytes *= 1000;
        ++unit;
        steps = roundedSteps(magnitude, unitBytes, units[unit].decimals);
    }
    // steps / 10^decimals as the nearest double prints back as exactly that short decimal.
    const double value = double(steps) / double(powerOfTen(units[unit].decimals));
    return sign + locale.toString(value, 'f', QLocale::FloatingPointShortest) + QLatin1Char(' ') +
           QLatin1String(units[unit].name);
}

} // namespace tessarine::format
