#include "charts/geometry/BarExtent.h"

#include <algorithm>

namespace tessarine {

double barExtent(qint64 value, qint64 whole, double available, double minimum) {
    if (whole <= 0)
        return minimum;
    // A part larger than its whole (a total held at the largest value, or a damaged stored result)
    // still ends within the chart.
    const double share = std::min(static_cast<double>(value) / static_cast<double>(whole), 1.0);
    return std::max(available * share, minimum);
}

double barChartHeight(qsizetype bars, double pitch) {
    return static_cast<double>(bars) * pitch + barChartAxisAllowance;
}

} // namespace tessarine
