#include "HistoryListModel.h"

#include "design/RoleNames.h"

#include <QMetaEnum>

namespace tessarine {

QVariant HistoryListModel::rowData(const ScanSummary& summary, int role) const {
    if (role != SelectedRole)
        return ResultListModel::rowData(summary, role);
    return m_selection.contains(summary.id);
}

QHash<int, QByteArray> HistoryListModel::roleNames() const {
    QHash<int, QByteArray> names = ResultListModel::roleNames();
    names.insert(roleNamesOf<OwnRole>());
    return names;
}

void HistoryListModel::setHistory(ScanHistoryModel* history) {
    if (m_history == history)
        return;
    if (m_history)
        m_history->disconnect(this);
    m_history = history;
    if (history) {
        // Every change of the history, however small, is a new list: a search and a sort over
        // ten thousand scans' summaries take well under a frame.
        connect(history, &ScanHistoryModel::scansChanged, this, &HistoryListModel::followHistory);
    }
    followHistory();
    emit historyChanged();
}

void HistoryListModel::setSearchText(const QString& text) {
    if (m_searchText == text)
        return;
    m_searchText = text;
    refreshRows();
    emit searchTextChanged();
}

void HistoryListModel::setSortOrder(HistorySortOrder order) {
    if (m_sortOrder == order)
        return;
    m_sortOrder = order;
    refreshRows();
    emit sortOrderChanged();
}

QStringList HistoryListModel::sortOrderLabels() const {
    const QMetaEnum orders = QMetaEnum::fromType<HistorySortOrder>();
    QStringList labels;
    for (int i = 0; i < orders.keyCount(); ++i)
        labels.append(sortOrderLabel(static_cast<HistorySortOrder>(orders.value(i))));
    return labels;
}

bool HistoryListModel::canCompare() const {
    return m_selection.comparisonPair(allScans()).has_value();
}

ScanSummary HistoryListModel::comparedFirst() const {
    const auto pair = m_selection.comparisonPair(allScans());
    return pair ? pair->first : ScanSummary{};
}

ScanSummary HistoryListModel::comparedSecond() const {
    const auto pair = m_selection.comparisonPair(allScans());
    return pair ? pair->second : ScanSummary{};
}

void HistoryListModel::toggleSelection(const ScanSummary& result) {
    if (!m_selection.toggle(result.id))
        return;
    refreshSelectedRoles();
    emit selectionChanged();
}

void HistoryListModel::clearSelection() {
    if (!m_selection.clear())
        return;
    refreshSelectedRoles();
    emit selectionChanged();
}

QList<ScanSummary> HistoryListModel::selectedScans() const {
    return m_selection.selectedScans(allScans());
}

QList<ScanSummary> HistoryListModel::allScans() const {
    return m_history ? m_history->results() : QList<ScanSummary>{};
}

void HistoryListModel::followHistory() {
    const QList<ScanSummary> scans = allScans();
    if (m_selection.keepOnly(scans))
        emit selectionChanged();
    const bool showsTrend = historyHasTrend(scans);
    const bool trendShownChanged = std::exchange(m_showsTrend, showsTrend) != showsTrend;
    refreshRows(trendShownChanged);
}

void HistoryListModel::refreshRows(bool trendShownChanged) {
    syncRows(filteredHistory(allScans(), m_searchText, m_sortOrder));
    // Redrawn only when it changed: the chart of a folder scanned every hour for a year draws
    // thousands of points.
    TrendSeries trend = storageTrend(m_rows);
    if (!trendShownChanged && trend == m_trend)
        return;
    m_trend = std::move(trend);
    emit trendChanged();
}

void HistoryListModel::refreshSelectedRoles() {
    if (count() > 0)
        emit dataChanged(index(0), index(count() - 1), {SelectedRole});
}

} // namespace tessarine
