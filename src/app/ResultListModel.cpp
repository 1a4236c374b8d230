#include "ResultListModel.h"

#include <QHash>

#include <algorithm>

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

QVariant ResultListModel::rowData(const ScanSummary& summary, int role) const {
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

void ResultListModel::resetRows(QList<ScanSummary> results) {
    RowListModel::resetRows(std::move(results));
    emit countChanged();
}

void ResultListModel::insertRow(int row, const ScanSummary& result) {
    beginInsertRows({}, row, row);
    m_rows.insert(row, result);
    endInsertRows();
    emit countChanged();
}

void ResultListModel::removeRowAt(int row) {
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    endRemoveRows();
    emit countChanged();
}

void ResultListModel::syncRows(const QList<ScanSummary>& latest) {
    if (syncOneSpan(latest))
        return;
    const auto latestRows = rowsById(latest);
    const auto currentRows = rowsById(m_rows);
    // Inserting the rows of a new order one by one would cost a signal and a move of the whole
    // list per row: with ten thousand scans, a change of sort order took seconds.
    if (!latestRows || !currentRows || !keepsCommonOrder(m_rows, *latestRows) ||
        runsMissingFrom(m_rows, *latestRows) + runsMissingFrom(latest, *currentRows) >
            mostRunsApplied) {
        replaceRows(latest);
        return;
    }
    const qsizetype before = m_rows.size();
    removeRowsMissingFrom(*latestRows);
    insertAndUpdateRows(latest, *currentRows);
    if (m_rows.size() != before)
        emit countChanged();
}

// One change in one place, as a save or a delete makes: the rows before and after it are the same
// ids in both lists, found without indexing ten thousand ids twice. False, having changed nothing,
// when the lists differ otherwise.
bool ResultListModel::syncOneSpan(const QList<ScanSummary>& latest) {
    const qsizetype shorter = std::min(m_rows.size(), latest.size());
    qsizetype head = 0, tail = 0;
    while (head < shorter && m_rows.at(head).id == latest.at(head).id)
        ++head;
    while (tail < shorter - head &&
           m_rows.at(m_rows.size() - 1 - tail).id == latest.at(latest.size() - 1 - tail).id)
        ++tail;
    const qsizetype removed = m_rows.size() - head - tail;
    const qsizetype inserted = latest.size() - head - tail;
    if (removed > 0 && inserted > 0)
        return false;
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        const qsizetype latestRow = row < head ? row : row - removed + inserted;
        if (row >= head && row < head + removed)
            continue;
        // A file saved again under the same id may hold other figures.
        if (m_rows.at(row) != latest.at(latestRow)) {
            m_rows[row] = latest.at(latestRow);
            emit dataChanged(index(int(row)), index(int(row)));
        }
    }
    if (removed > 0) {
        beginRemoveRows({}, int(head), int(head + removed - 1));
        m_rows.remove(head, removed);
        endRemoveRows();
    } else if (inserted > 0) {
        beginInsertRows({}, int(head), int(head + inserted - 1));
        m_rows.insert(head, inserted, ScanSummary());
        std::copy(latest.begin() + head, latest.begin() + head + inserted, m_rows.begin() + head);
        endInsertRows();
    }
    if (removed > 0 || inserted > 0)
        emit countChanged();
    return true;
}

// The list grows or shrinks at its end, and the rows that differ from there up are updated in
// place: a view keeps its delegates and only refreshes what they show. Starting over made it build
// every visible card again, 200 ms for a change of sort order with ten thousand scans.
void ResultListModel::replaceRows(const QList<ScanSummary>& latest) {
    const qsizetype before = m_rows.size();
    const qsizetype kept = std::min(before, latest.size());
    if (latest.size() < before) {
        beginRemoveRows({}, int(kept), int(m_rows.size() - 1));
        m_rows.resize(kept);
        endRemoveRows();
    } else if (latest.size() > before) {
        beginInsertRows({}, int(kept), int(latest.size() - 1));
        m_rows.append(latest.sliced(kept));
        endInsertRows();
    }
    qsizetype first = 0, last = kept - 1;
    while (first < kept && m_rows.at(first) == latest.at(first))
        ++first;
    while (last > first && m_rows.at(last) == latest.at(last))
        --last;
    m_rows = latest;
    if (first < kept)
        emit dataChanged(index(int(first)), index(int(last)));
    if (latest.size() != before)
        emit countChanged();
}

// Runs of rows to drop go in one removal each: a search that leaves 25 of 1,000 rows removes a few
// dozen runs, not 975 rows one by one.
void ResultListModel::removeRowsMissingFrom(const QHash<QUuid, qsizetype>& latestRows) {
    for (qsizetype end = m_rows.size() - 1; end >= 0; --end) {
        if (latestRows.contains(m_rows.at(end).id))
            continue;
        qsizetype start = end;
        while (start > 0 && !latestRows.contains(m_rows.at(start - 1).id))
            --start;
        beginRemoveRows({}, int(start), int(end));
        m_rows.remove(start, end - start + 1);
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
            if (m_rows.at(row) != latest.at(row)) {
                m_rows[row] = latest.at(row);
                emit dataChanged(index(int(row)), index(int(row)));
            }
            ++row;
            continue;
        }
        qsizetype end = row;
        while (end < latest.size() && !kept.contains(latest.at(end).id))
            ++end;
        beginInsertRows({}, int(row), int(end - 1));
        QList<ScanSummary> tail = m_rows.sliced(row);
        m_rows.resize(row);
        m_rows.append(latest.sliced(row, end - row));
        m_rows.append(std::move(tail));
        endInsertRows();
        row = end;
    }
}

} // namespace tessarine
