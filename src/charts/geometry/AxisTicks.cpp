#include "charts/geometry/AxisTicks.h"

#include <algorithm>
#include <limits>

namespace tessarine {

namespace {

// The smallest of 1, 2 and 5 times a power of ten that is at least rawStep.
qint64 niceStep(qint64 rawStep) {
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    for (qint64 power = 1;; power *= 10) {
        for (const qint64 multiple : {1, 2, 5}) {
            if (power > largest / multiple)
                return largest;
            if (power * multiple >= rawStep)
                return power * multiple;
        }
        if (power > largest / 10)
            return largest;
    }
}

} // namespace

std::vector<qint64> niceAxisTicks(qint64 maxValue, int intervals) {
    const qint64 end = std::max<qint64>(maxValue, 1);
    const qint64 count = std::max(intervals, 1);
    // Rounded up so that `count` steps always reach the end.
    const qint64 step = niceStep(end / count + (end % count != 0 ? 1 : 0));
    std::vector<qint64> ticks{0};
    while (ticks.back() < end && ticks.back() <= std::numeric_limits<qint64>::max() - step)
        ticks.push_back(ticks.back() + step);
    return ticks;
}

QList<double> niceAxisTickValues(qint64 maxValue) {
    QList<double> values;
    for (const qint64 tick : niceAxisTicks(maxValue))
        values.append(double(tick));
    return values;
}

} // namespace tessarine
