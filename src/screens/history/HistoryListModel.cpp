#include "HistoryListModel.h"

#include "design/RoleNames.h"

#include <QMetaEnum>

namespace tessarine {

QVariant HistoryListModel::data(const QModelIndex& index, int role) const {
    if (role != SelectedRole)
        return ResultListModel::data(index, role);
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    return m_selection.contains(m_rows.at(index.row()).id);
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
        // Every change of the history, however small, is a new list: a search and a sort over a
        // thousand scans take well under a frame.
        connect(history, &QAbstractItemModel::modelReset, this, &HistoryListModel::refresh);
        connect(history, &QAbstractItemModel::rowsInserted, this, &HistoryListModel::refresh);
        connect(history, &QAbstractItemModel::rowsRemoved, this, &HistoryListModel::refresh);
    }
    refresh();
    emit historyChanged();
}

void HistoryListModel::setSearchText(const QString& text) {
    if (m_searchText == text)
        return;
    m_searchText = text;
    refresh();
    emit searchTextChanged();
}

void HistoryListModel::setSortOrder(HistorySortOrder order) {
    if (m_sortOrder == order)
        return;
    m_sortOrder = order;
    refresh();
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

AnalysisResult HistoryListModel::comparedFirst() const {
    const auto pair = m_selection.comparisonPair(allScans());
    return pair ? pair->first : AnalysisResult{};
}

AnalysisResult HistoryListModel::comparedSecond() const {
    const auto pair = m_selection.comparisonPair(allScans());
    return pair ? pair->second : AnalysisResult{};
}

void HistoryListModel::toggleSelection(const AnalysisResult& result) {
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

QList<AnalysisResult> HistoryListModel::selectedScans() const {
    return m_selection.selectedScans(allScans());
}

QList<AnalysisResult> HistoryListModel::allScans() const {
    return m_history ? m_history->results() : QList<AnalysisResult>{};
}

void HistoryListModel::refresh() {
    const QList<AnalysisResult> scans = allScans();
    syncRows(filteredHistory(scans, m_searchText, m_sortOrder));
    if (m_selection.keepOnly(scans))
        emit selectionChanged();
    m_showsTrend = historyHasTrend(scans);
    m_trend = storageTrend(m_rows);
    emit trendChanged();
}

void HistoryListModel::refreshSelectedRoles() {
    if (count() > 0)
        emit dataChanged(index(0), index(count() - 1), {SelectedRole});
}

} // namespace tessarine
