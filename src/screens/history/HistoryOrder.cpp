#include "HistoryOrder.h"

#include <QCollator>

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

QList<ScanSummary> filteredHistory(const QList<ScanSummary>& history,
                                      const QString& searchText, HistorySortOrder order) {
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
        QCollator collator;
        std::stable_sort(kept.begin(), kept.end(), [&](const auto& a, const auto& b) {
            return collator.compare(a.rootName, b.rootName) < 0;
        });
        break;
    }
    }
    return kept;
}

} // namespace tessarine
