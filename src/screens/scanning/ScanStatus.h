#pragma once

#include "model/ScanProgress.h"
#include "screens/scanning/ScanRateMeter.h"

#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tessarine {

// The texts of the scanning screen's status panel. Before the first snapshot every figure has a
// resting value (0, "0 bytes", "0s", "—") so the panel keeps its shape while the scan starts.
struct ScanStatus {
    Q_GADGET
    QML_VALUE_TYPE(scanStatus)
    Q_PROPERTY(QString phaseTitle MEMBER phaseTitle)
    Q_PROPERTY(QString phaseDescription MEMBER phaseDescription)
    Q_PROPERTY(bool waiting MEMBER waiting)
    Q_PROPERTY(QString phaseSymbol MEMBER phaseSymbol)
    Q_PROPERTY(QString itemCount MEMBER itemCount)
    Q_PROPERTY(QString currentName MEMBER currentName)
    Q_PROPERTY(QStringList locationCrumbs MEMBER locationCrumbs)
    Q_PROPERTY(qint64 files MEMBER files)
    Q_PROPERTY(qint64 folders MEMBER folders)
    Q_PROPERTY(QString dataScanned MEMBER dataScanned)
    Q_PROPERTY(QString fileRate MEMBER fileRate)
    Q_PROPERTY(QString elapsed MEMBER elapsed)
    Q_PROPERTY(QString throughput MEMBER throughput)
    Q_PROPERTY(QString remaining MEMBER remaining)

public:
    QString phaseTitle;
    QString phaseDescription; // or, while a folder does not answer, that it is waited for
    bool waiting = false;
    QString phaseSymbol;
    QString itemCount;   // files and folders under the ring; empty without a snapshot
    QString currentName; // the item the scan is at, without its folders
    QStringList locationCrumbs;
    // The counters' figures, counted up to in the window rather than printed here.
    qint64 files = 0;
    qint64 folders = 0;
    QString dataScanned;
    QString fileRate;
    QString elapsed;
    QString throughput;
    QString remaining;

    bool operator==(const ScanStatus&) const = default;
};

ScanStatus scanStatus(const std::optional<ScanProgress>& progress, const ScanRateMeter& rates,
                      const QDateTime& now);

} // namespace tessarine
