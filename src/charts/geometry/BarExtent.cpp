#include "charts/geometry/BarExtent.h"

#include <algorithm>

namespace tessarine {

double barExtent(qint64 value, qint64 whole, double available, double minimum) {
    if (whole <= 0)
        return minimum;
    return std::max(available * static_cast<double>(value) / static_cast<double>(whole), minimum);
}

double barChartHeight(qsizetype bars, double pitch) {
    return static_cast<double>(bars) * pitch + barChartAxisAllowance;
}

} // namespace tessarine
