#include "StorageTrend.h"

#include "model/PathNames.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace tessarine {

QString TrendSeries::folderName() const {
    return lastPathComponent(folderPath);
}

QList<qreal> TrendSeries::times() const {
    QList<qreal> values;
    for (const QDateTime& date : dates)
        values.append(qreal(date.toMSecsSinceEpoch()));
    return values;
}

QList<qreal> TrendSeries::sizeValues() const {
    return QList<qreal>(sizes.begin(), sizes.end());
}

bool historyHasTrend(const QList<ScanSummary>& history) {
    // A folder watched over months shows up again within the first few scans.
    QSet<QString> paths;
    for (const ScanSummary& result : history) {
        if (paths.contains(result.rootPath))
            return true;
        paths.insert(result.rootPath);
    }
    return false;
}

TrendSeries storageTrend(const QList<ScanSummary>& scans) {
    QHash<QString, QList<const ScanSummary*>> byFolder;
    for (const ScanSummary& result : scans)
        byFolder[result.rootPath].append(&result);

    const QList<const ScanSummary*>* chosen = nullptr;
    QString chosenPath;
    QDateTime chosenLatest;
    for (auto group = byFolder.cbegin(); group != byFolder.cend(); ++group) {
        if (group->size() < 2)
            continue;
        const QDateTime latest =
            (*std::max_element(group->begin(), group->end(), [](auto* a, auto* b) {
                return a->scanDate < b->scanDate;
            }))->scanDate;
        const bool better = !chosen || latest > chosenLatest ||
                            (latest == chosenLatest && group.key() < chosenPath);
        if (better) {
            chosen = &group.value();
            chosenPath = group.key();
            chosenLatest = latest;
        }
    }

    TrendSeries series;
    if (!chosen)
        return series;
    QList<const ScanSummary*> ordered = *chosen;
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](auto* a, auto* b) { return a->scanDate < b->scanDate; });
    series.folderPath = chosenPath;
    for (const ScanSummary* result : ordered) {
        series.dates.push_back(result->scanDate);
        series.sizes.push_back(result->totalSize);
    }
    return series;
}

} // namespace tessarine
