#include "HistoryOrder.h"

#include <QCollator>
#include <QHash>

#include <algorithm>

namespace tessarine {

namespace {

bool matches(const ScanSummary& result, const QString& searchText) {
    return result.rootName.contains(searchText, Qt::CaseInsensitive) ||
           result.rootPath.contains(searchText, Qt::CaseInsensitive);
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
    kept.reserve(history.size());
    std::copy_if(history.begin(), history.end(), std::back_inserter(kept),
                 [&](const ScanSummary& result) {
                     return searchText.isEmpty() || matches(result, searchText);
                 });
    switch (order) {
    case HistoryOrder::DateDescending:
        std::stable_sort(kept.begin(), kept.end(),
                         [](const auto& a, const auto& b) { return a.scanDate > b.scanDate; });
        break;
    case HistoryOrder::DateAscending:
        std::stable_sort(kept.begin(), kept.end(),
                         [](const auto& a, const auto& b) { return a.scanDate < b.scanDate; });
        break;
    case HistoryOrder::SizeDescending:
        std::stable_sort(kept.begin(), kept.end(),
                         [](const auto& a, const auto& b) { return a.totalSize > b.totalSize; });
        break;
    case HistoryOrder::SizeAscending:
        std::stable_sort(kept.begin(), kept.end(),
                         [](const auto& a, const auto& b) { return a.totalSize < b.totalSize; });
        break;
    case HistoryOrder::NameAscending: {
        // Accents and case sort as the user's language does ("émile" beside "Emma", not after
        // "Zoe"), which code points do not.
        // The collator is slow per comparison, and a history holds few folders scanned many
        // times: each distinct name is ranked once, names that collate alike sharing a rank.
        QCollator collator;
        QHash<QString, int> ranks;
        for (const ScanSummary& scan : std::as_const(kept))
            ranks.insert(scan.rootName, 0);
        QStringList names = ranks.keys();
        std::sort(names.begin(), names.end(),
                  [&](const QString& a, const QString& b) { return collator.compare(a, b) < 0; });
        for (qsizetype i = 1; i < names.size(); ++i)
            ranks[names.at(i)] = ranks.value(names.at(i - 1)) +
                                 (collator.compare(names.at(i - 1), names.at(i)) != 0);
        std::stable_sort(kept.begin(), kept.end(), [&](const auto& a, const auto& b) {
            return ranks.value(a.rootName) < ranks.value(b.rootName);
        });
        break;
    }
    }
    return kept;
}

} // namespace tessarine
