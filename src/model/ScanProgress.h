#pragma once

#include "model/RawValue.h"

#include <QDateTime>
#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace tessarine {

// What a running scan is doing. The order matters: the scanning screen compares positions.
enum class ScanPhase : quint8 {
    initializing,
    scanning,
    analyzing,
    categorizing,
    finalizing,
    complete,
    cancelled,
    error
};

const std::array<ScanPhase, 8>& allScanPhases();

// Display text, e.g. "Discovering files...".
QString rawValue(ScanPhase phase);

template <> std::optional<ScanPhase> fromRawValue<ScanPhase>(QStringView raw);

// One snapshot of a running scan. Made whole by the scanner and never changed afterwards.
struct ScanProgress {
    ScanPhase phase = ScanPhase::initializing;
    qint64 filesScanned = 0;
    qint64 foldersScanned = 0;
    QString currentPath;
    qint64 bytesScanned = 0;
    QDateTime startTime;
    std::optional<qint64> estimatedTotalFiles;

    // Time since startTime: "< 1s", "42s" or "2m 5s".
    QString formattedElapsedTime(const QDateTime& now = QDateTime::currentDateTimeUtc()) const;
    // Estimated time left, e.g. "3m 20s remaining"; none while the total is unknown or when too
    // little is done to extrapolate.
    std::optional<QString>
    formattedRemainingTime(const QDateTime& now = QDateTime::currentDateTimeUtc()) const;

    bool operator==(const ScanProgress&) const = default;
};

} // namespace tessarine
