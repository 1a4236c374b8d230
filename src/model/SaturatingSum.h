#pragma once

#include <QtGlobal>

#include <limits>

namespace tessarine {

// a + b, held at the largest (or smallest) 64-bit value instead of wrapping. Sparse files may each
// claim up to 2^63 - 1 bytes, so two of them already overflow a plain sum into a negative total;
// every sum of sizes goes through here, so a total is at worst "at least this much", never
// negative and never undefined.
inline qint64 saturatingAdd(qint64 a, qint64 b) {
    qint64 sum;
    if (!__builtin_add_overflow(a, b, &sum))
        return sum;
    return b > 0 ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min();
}

// Adds `amount` to `total` in place, saturating.
inline void addSaturating(qint64& total, qint64 amount) {
    total = saturatingAdd(total, amount);
}

} // namespace tessarine
