#include "charts/geometry/SlicePicking.h"

namespace tessarine {

std::optional<qsizetype> sliceAt(double x, double width, qsizetype count) {
    if (!(width > 0) || count <= 0)
        return std::nullopt;
    // Truncated toward zero, so a point less than one slice left of the chart still picks the
    // first bar.
    const double index = x / width * static_cast<double>(count);
    if (!(index > -1.0) || index >= static_cast<double>(count))
        return std::nullopt;
    return static_cast<qsizetype>(index);
}

} // namespace tessarine
