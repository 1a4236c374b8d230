#include "ResultListModel.h"

#include "design/RoleNames.h"

#include <QHash>

#include <optional>

namespace tessarine {

namespace {

// Rows by id, or nothing when an id is listed twice (two copies of one history file).
std::optional<QHash<QUuid, qsizetype>> rowsById(const QList<ScanSummary>& list) {
    QHash<QUuid, qsizetype> rows;
    rows.reserve(list.size());
    for (qsizetype row = 0; row < list.size(); ++row) {
        if (rows.contains(list.at(row).id))
            return std::nullopt;
        rows.insert(list.at(row).id, row);
    }
    return rows;
}

// Past this many runs of rows to remove or insert, starting over costs a view less than a signal
// per run: a search keeping every fourth of ten thousand scans took a second in 2,500 removals.
constexpr qsizetype mostRunsApplied = 64;

// The runs of consecutive rows of `list` that `other` does not hold.
qsizetype runsMissingFrom(const QList<ScanSummary>& list, const QHash<QUuid, qsizetype>& other) {
    qsizetype runs = 0;
    bool inRun = false;
    for (const ScanSummary& summary : list) {
        const bool missing = !other.contains(summary.id);
        runs += missing && !inRun;
        inRun = missing;
    }
    return runs;
}

// Whether the rows both lists hold come in the same order in both.
bool keepsCommonOrder(const QList<ScanSummary>& current,
                      const QHash<QUuid, qsizetype>& latestRows) {
    qsizetype previous = -1;
    for (const ScanSummary& summary : current) {
        const qsizetype row = latestRows.value(summary.id, -1);
        if (row < 0)
            continue;
        if (row < previous)
            return false;
        previous = row;
    }
    return true;
}

} // namespace

int ResultListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ResultListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const ScanSummary& summary = m_results.at(index.row());
    switch (static_cast<Role>(role)) {
    case SummaryRole:
        return QVariant::fromValue(summary);
    case RootNameRole:
        return summary.rootName;
    case RootPathRole:
        return summary.rootPath;
    case FolderNameRole:
        return summary.folderName();
    case TotalSizeRole:
        return summary.totalSize;
    case FileCountRole:
        return summary.fileCount;
    case ScanDateRole:
        return summary.scanDate;
    }
    return {};
}

QHash<int, QByteArray> ResultListModel::roleNames() const {
    return roleNamesOf<Role>();
}

void ResultListModel::resetRows(QList<ScanSummary> results) {
    beginResetModel();
    m_results = std::move(results);
    endResetModel();
    emit countChanged();
}

void ResultListModel::insertRow(int row, const ScanSummary& result) {
    beginInsertRows({}, row, row);
    m_results.insert(row, result);
    endInsertRows();
    emit countChanged();
}

void ResultListModel::removeRowAt(int row) {
    beginRemoveRows({}, row, row);
    m_results.removeAt(row);
    endRemoveRows();
    emit countChanged();
}

void ResultListModel::syncRows(const QList<ScanSummary>& latest) {
    const auto latestRows = rowsById(latest);
    const auto currentRows = rowsById(m_results);
    // Inserting the rows of a new order one by one would cost a signal and a move of the whole
    // list per row: with ten thousand scans, a change of sort order took seconds.
    if (!latestRows || !currentRows || !keepsCommonOrder(m_results, *latestRows) ||
        runsMissingFrom(m_results, *latestRows) + runsMissingFrom(latest, *currentRows) >
            mostRunsApplied) {
        resetRows(latest);
        return;
    }
    const qsizetype before = m_results.size();
    removeRowsMissingFrom(*latestRows);
    insertAndUpdateRows(latest, *currentRows);
    if (m_results.size() != before)
        emit countChanged();
}

// Runs of rows to drop go in one removal each: a search that leaves 25 of 1,000 rows removes a few
// dozen runs, not 975 rows one by one.
void ResultListModel::removeRowsMissingFrom(const QHash<QUuid, qsizetype>& latestRows) {
    for (qsizetype end = m_results.size() - 1; end >= 0; --end) {
        if (latestRows.contains(m_results.at(end).id))
            continue;
        qsizetype start = end;
        while (start > 0 && !latestRows.contains(m_results.at(start - 1).id))
            --start;
        beginRemoveRows({}, int(start), int(end));
        m_results.remove(start, end - start + 1);
        endRemoveRows();
        end = start;
    }
}

// What is left is in the order of `latest`, so walking both together finds where each run of new
// rows goes.
void ResultListModel::insertAndUpdateRows(const QList<ScanSummary>& latest,
                                          const QHash<QUuid, qsizetype>& kept) {
    for (qsizetype row = 0; row < latest.size();) {
        if (kept.contains(latest.at(row).id)) {
            // A file saved again under the same id may hold other figures.
            if (m_results.at(row) != latest.at(row)) {
                m_results[row] = latest.at(row);
                emit dataChanged(index(int(row)), index(int(row)));
            }
            ++row;
            continue;
        }
        qsizetype end = row;
        while (end < latest.size() && !kept.contains(latest.at(end).id))
            ++end;
        beginInsertRows({}, int(row), int(end - 1));
        QList<ScanSummary> tail = m_results.sliced(row);
        m_results.resize(row);
        m_results.append(latest.sliced(row, end - row));
        m_results.append(std::move(tail));
        endInsertRows();
        row = end;
    }
}

} // namespace tessarine
