#include "screens/scanning/ScanStatus.h"

#include "model/Format.h"
#include "model/PathNames.h"
#include "screens/scanning/ScanPaths.h"
#include "screens/scanning/ScanPhaseDisplay.h"
#include "screens/scanning/Throughput.h"

namespace tessarine {

ScanStatus scanStatus(const std::optional<ScanProgress>& progress, const ScanRateMeter& rates,
                      const QDateTime& now) {
    // Before the first snapshot the scan is, as far as the user can tell, initializing.
    const ScanPhase phase = progress ? progress->phase : ScanPhase::initializing;
    ScanStatus status{
        .phaseTitle = rawValue(phase),
        .phaseDescription = phaseDescription(phase),
        .waiting = false,
        .phaseSymbol = phaseSymbol(progress ? std::optional(phase) : std::nullopt),
        .itemCount = {},
        .currentName = {},
        .locationCrumbs = {},
        .files = 0,
        .folders = 0,
        .dataScanned = QStringLiteral("0 bytes"),
        .fileRate = QString::asprintf("%.0f/s", rates.filesPerSecond()),
        .elapsed = QStringLiteral("0s"),
        .throughput = formatThroughput(rates.bytesPerSecond()),
        .remaining = format::missing(),
    };
    if (!progress)
        return status;
    status.itemCount = format::count(progress->filesScanned + progress->foldersScanned);
    if (!progress->unansweredFolder.isEmpty()) {
        status.phaseDescription = format::waitingFor(lastPathComponent(progress->unansweredFolder));
        status.waiting = true;
    }
    status.currentName = lastPathComponent(progress->currentPath);
    status.locationCrumbs = locationCrumbs(progress->currentPath);
    status.files = progress->filesScanned;
    status.folders = progress->foldersScanned;
    status.dataScanned = format::byteCount(progress->bytesScanned);
    status.elapsed = progress->formattedElapsedTime(now);
    status.remaining = progress->formattedRemainingTime(now).value_or(format::missing());
    return status;
}

} // namespace tessarine
