#pragma once

#include "model/ScanProgress.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tessarine {

// An optional ScanProgress snapshot as a QML value. The time texts are methods, not properties,
// because they depend on the clock and a view re-reads them on its own refresh.
class ProgressHandle {
    Q_GADGET
    QML_VALUE_TYPE(scanProgress)
    Q_PROPERTY(bool valid READ valid CONSTANT)
    Q_PROPERTY(int phase READ phase CONSTANT)
    Q_PROPERTY(QString phaseName READ phaseName CONSTANT)
    Q_PROPERTY(qint64 filesScanned READ filesScanned CONSTANT)
    Q_PROPERTY(qint64 foldersScanned READ foldersScanned CONSTANT)
    Q_PROPERTY(QString currentPath READ currentPath CONSTANT)
    Q_PROPERTY(qint64 bytesScanned READ bytesScanned CONSTANT)
    Q_PROPERTY(QDateTime startTime READ startTime CONSTANT)
    Q_PROPERTY(qint64 estimatedTotalFiles READ estimatedTotalFiles CONSTANT)

public:
    ProgressHandle() = default;
    ProgressHandle(std::optional<ScanProgress> progress)
        : m_progress(std::move(progress)) {}

    const std::optional<ScanProgress>& progress() const { return m_progress; }

    bool valid() const { return m_progress.has_value(); }
    // The position in ScanPhase's declared order; -1 without a snapshot.
    int phase() const;
    QString phaseName() const;
    qint64 filesScanned() const;
    qint64 foldersScanned() const;
    QString currentPath() const;
    qint64 bytesScanned() const;
    QDateTime startTime() const;
    // -1 while the total is not known.
    qint64 estimatedTotalFiles() const;

    // "" without a snapshot, and for the remaining time also while there is no estimate.
    Q_INVOKABLE QString formattedElapsedTime() const;
    Q_INVOKABLE QString formattedRemainingTime() const;

    bool operator==(const ProgressHandle&) const = default;

private:
    std::optional<ScanProgress> m_progress;
};

} // namespace tessarine
