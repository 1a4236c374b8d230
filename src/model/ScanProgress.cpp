#include "model/ScanProgress.h"

#include "model/Format.h"
#include "model/RawValueTable.h"

#include <algorithm>

namespace tessarine {

namespace {

constexpr std::array<QStringView, 8> phaseNames = {
    u"Initializing...",    u"Discovering files...",
    u"Analyzing files...", u"Categorizing...",
    u"Finalizing...",      u"Complete",
    u"Cancelled",          u"Error",
};

// Below this share of the work done, an extrapolation is mostly noise.
constexpr double earliestEstimateFraction = 0.01;

double secondsBetween(const QDateTime& start, const QDateTime& end) {
    return double(start.msecsTo(end)) / 1000.0;
}

} // namespace

const std::array<ScanPhase, 8>& allScanPhases() {
    static constexpr std::array<ScanPhase, 8> all = {
        ScanPhase::initializing, ScanPhase::scanning, ScanPhase::analyzing, ScanPhase::categorizing,
        ScanPhase::finalizing,   ScanPhase::complete, ScanPhase::cancelled, ScanPhase::error,
    };
    return all;
}

QString rawValue(ScanPhase phase) {
    return rawValueAt(phaseNames, phase);
}

template <> std::optional<ScanPhase> fromRawValue<ScanPhase>(QStringView raw) {
    return caseWithRawValue<ScanPhase>(phaseNames, raw);
}

QString ScanProgress::formattedElapsedTime(const QDateTime& now) const {
    return format::compactDuration(secondsBetween(startTime, now));
}

std::optional<QString> ScanProgress::formattedRemainingTime(const QDateTime& now) const {
    if (!estimatedTotalFiles || *estimatedTotalFiles < 1)
        return std::nullopt;
    const double fraction = double(filesScanned + foldersScanned) / double(*estimatedTotalFiles);
    if (fraction < 1 && fraction <= earliestEstimateFraction)
        return std::nullopt;
    // Counters can overtake the estimate when items appear during the scan; treat that as done.
    const double done = std::min(fraction, 1.0);
    const double elapsed = secondsBetween(startTime, now);
    const double remaining = std::max(elapsed / done - elapsed, 0.0);
    return format::compactDuration(remaining) + QStringLiteral(" remaining");
}

} // namespace tessarine
