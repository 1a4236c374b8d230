#pragma once

#include "model/ScanSummary.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tessarine {

// One folder's scans as the trend chart draws them: oldest first.
struct TrendSeries {
    Q_GADGET
    QML_VALUE_TYPE(trendSeries)
    Q_PROPERTY(QString folderPath MEMBER folderPath)
    Q_PROPERTY(QString folderName READ folderName)
    Q_PROPERTY(bool isEmpty READ isEmpty)
    // For the chart: milliseconds since the epoch, and sizes, as QML numbers.
    Q_PROPERTY(QList<qreal> times READ times)
    Q_PROPERTY(QList<qreal> sizeValues READ sizeValues)

public:
    QString folderPath;
    std::vector<QDateTime> dates;
    std::vector<qint64> sizes;

    QString folderName() const;
    QList<qreal> times() const;
    QList<qreal> sizeValues() const;
    bool isEmpty() const { return dates.size() < 2; }
    bool operator==(const TrendSeries&) const = default;
};

// Whether the history holds a folder scanned at least twice. The whole history decides, so that
// the trend section does not come and go while the user types a search.
bool historyHasTrend(const QList<ScanSummary>& history);

// The folder the trend charts among the given scans: of the folders scanned at least twice, the
// one scanned most recently (the folder the user is most likely watching), the earlier path
// first on a tie. Empty when no folder qualifies.
TrendSeries storageTrend(const QList<ScanSummary>& scans);

} // namespace tessarine
