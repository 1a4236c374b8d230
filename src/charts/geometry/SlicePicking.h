#pragma once

#include <QtGlobal>

#include <optional>

namespace tessarine {

// The bar under x when a chart's width is cut into count equal slices, whatever the bars' drawn
// positions, so that the pointer always picks something between the bars too. None at or beyond
// the right edge, left of the chart, or when there is nothing to pick.
std::optional<qsizetype> sliceAt(double x, double width, qsizetype count);

} // namespace tessarine
