#pragma once

#include "model/RawValue.h"
#include "model/RecordEnums.h"

#include <QDateTime>
#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace tessarine {

const std::array<ScanPhase, 8>& allScanPhases();

// Display text, e.g. "Discovering files...".
QString rawValue(ScanPhase phase);

template <> std::optional<ScanPhase> fromRawValue<ScanPhase>(QStringView raw);

// One snapshot of a running scan. Made whole by the scanner and never changed afterwards.
struct ScanProgress {
    Q_GADGET
    Q_PROPERTY(tessarine::ScanPhase phase MEMBER phase)
    Q_PROPERTY(qint64 filesScanned MEMBER filesScanned)
    Q_PROPERTY(qint64 foldersScanned MEMBER foldersScanned)
    Q_PROPERTY(QString currentPath MEMBER currentPath)
    Q_PROPERTY(qint64 bytesScanned MEMBER bytesScanned)
    Q_PROPERTY(QDateTime startTime MEMBER startTime)
    Q_PROPERTY(QString unansweredFolder MEMBER unansweredFolder)

public:
    ScanPhase phase = ScanPhase::initializing;
    qint64 filesScanned = 0;
    qint64 foldersScanned = 0;
    QString currentPath;
    qint64 bytesScanned = 0;
    QDateTime startTime;
    std::optional<qint64> estimatedTotalFiles;
    // A folder that has kept discovery waiting for seconds (a hung network mount); empty while
    // every folder answers.
    QString unansweredFolder;

    // Time since startTime: "< 1s", "42s" or "2m 5s".
    QString formattedElapsedTime(const QDateTime& now = QDateTime::currentDateTimeUtc()) const;
    // Estimated time left, e.g. "3m 20s remaining"; none while the total is unknown or when too
    // little is done to extrapolate.
    std::optional<QString>
    formattedRemainingTime(const QDateTime& now = QDateTime::currentDateTimeUtc()) const;

    bool operator==(const ScanProgress&) const = default;
};

} // namespace tessarine
