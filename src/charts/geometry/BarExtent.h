#pragma once

#include <QtGlobal>

namespace tessarine {

// The shortest bar of the extension list, so that a tiny extension still shows.
constexpr double extensionBarMinimum = 4;
// Bar charts take this many points per bar plus room for their axis.
constexpr double categoryBarPitch = 36;
constexpr double folderBarPitch = 28;
constexpr double barChartAxisAllowance = 40;

// The length of a bar showing value out of whole in available points, at least minimum. A whole
// of 0 or less has no shares, so every bar is drawn at the minimum.
double barExtent(qint64 value, qint64 whole, double available, double minimum = 0);

// The height of a bar chart with the given number of bars.
double barChartHeight(qsizetype bars, double pitch);

} // namespace tessarine
