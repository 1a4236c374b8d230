#include "HistoryOrder.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <vector>

namespace tessarine {

namespace {

bool matches(const ScanSummary& result, const QString& searchText) {
    return result.rootName.contains(searchText, Qt::CaseInsensitive) ||
           result.rootPath.contains(searchText, Qt::CaseInsensitive);
}

// Stable, by a key worked out once per scan: comparing the scans' dates afresh at every step took
// most of a frame with ten thousand scans.
template <typename Key>
QList<ScanSummary> sortedByKey(const QList<ScanSummary>& scans, Key key, bool descending) {
    std::vector<std::pair<qint64, qsizetype>> keyed;
    keyed.reserve(std::size_t(scans.size()));
    for (qsizetype i = 0; i < scans.size(); ++i)
        keyed.emplace_back(key(scans.at(i)), i);
    std::stable_sort(keyed.begin(), keyed.end(), [descending](const auto& a, const auto& b) {
        return descending ? a.first > b.first : a.first < b.first;
    });
    QList<ScanSummary> sorted;
    sorted.reserve(scans.size());
    for (const auto& [value, i] : keyed)
        sorted.append(scans.at(i));
    return sorted;
}

} // namespace

QString sortOrderLabel(HistorySortOrder order) {
    switch (order) {
    case HistoryOrder::DateDescending:
        return QStringLiteral("Newest First");
    case HistoryOrder::DateAscending:
        return QStringLiteral("Oldest First");
    case HistoryOrder::SizeDescending:
        return QStringLiteral("Largest First");
    case HistoryOrder::SizeAscending:
        return QStringLiteral("Smallest First");
    case HistoryOrder::NameAscending:
        return QStringLiteral("Name A-Z");
    }
    return {};
}

QList<ScanSummary> filteredHistory(const QList<ScanSummary>& history, const QString& searchText,
                                   HistorySortOrder order) {
    QList<ScanSummary> kept;
    if (searchText.isEmpty()) {
        kept = history;
    } else {
        // A history holds few folders scanned many times: each folder is matched once.
        QHash<std::pair<QString, QString>, bool> matched;
        std::copy_if(history.begin(), history.end(), std::back_inserter(kept),
                     [&](const ScanSummary& result) {
                         const std::pair folder{result.rootName, result.rootPath};
                         auto known = matched.constFind(folder);
                         if (known == matched.cend())
                             known = matched.insert(folder, matches(result, searchText));
                         return *known;
                     });
    }
    const auto date = [](const ScanSummary& scan) { return scan.scanDate.toMSecsSinceEpoch(); };
    const auto size = [](const ScanSummary& scan) { return scan.totalSize; };
    switch (order) {
    case HistoryOrder::DateDescending:
        return sortedByKey(kept, date, true);
    case HistoryOrder::DateAscending:
        return sortedByKey(kept, date, false);
    case HistoryOrder::SizeDescending:
        return sortedByKey(kept, size, true);
    case HistoryOrder::SizeAscending:
        return sortedByKey(kept, size, false);
    case HistoryOrder::NameAscending: {
        // Accents and case sort as the user's language does ("émile" beside "Emma", not after
        // "Zoe"), which code points do not.
        // The collator is slow per comparison, and a history holds few folders scanned many
        // times: each distinct name is ranked once, names that collate alike sharing a rank.
        QCollator collator;
        QHash<QString, qint64> ranks;
        for (const ScanSummary& scan : std::as_const(kept))
            ranks.insert(scan.rootName, 0);
        QStringList names = ranks.keys();
        std::sort(names.begin(), names.end(),
                  [&](const QString& a, const QString& b) { return collator.compare(a, b) < 0; });
        for (qsizetype i = 1; i < names.size(); ++i)
            ranks[names.at(i)] = ranks.value(names.at(i - 1)) +
                                 (collator.compare(names.at(i - 1), names.at(i)) != 0);
        return sortedByKey(
            kept, [&](const ScanSummary& scan) { return ranks.value(scan.rootName); }, false);
    }
    }
    return kept;
}

} // namespace tessarine
