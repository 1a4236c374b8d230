#pragma once

#include "model/ScanProgress.h"
#include "screens/common/Figure.h"

#include <optional>
#include <vector>

// The figures the scanning screen computes from one progress snapshot and its own rates.
namespace tessarine {

// "Scan Rate", "Throughput", "Avg File Size", "Items/Folder"; the averages read "—" until
// there is something to divide by.
std::vector<Figure> performanceFigures(const ScanProgress& progress, double filesPerSecond,
                                       qint64 bytesPerSecond);

// "Total Files" to "Est. Remaining"; the remaining time reads "Calculating..." until the scan
// can estimate it.
std::vector<Figure> statisticsFigures(const ScanProgress& progress, const QDateTime& now);

// How much of the estimated total is done, from 0 to 1; none while there is no usable estimate.
// Counters can outrun the estimate, so the fraction is capped rather than trusted.
std::optional<double> completedFraction(const ScanProgress& progress);

} // namespace tessarine
