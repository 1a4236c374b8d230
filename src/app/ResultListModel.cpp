#include "ResultListModel.h"

#include <QSet>

namespace tessarine {

QVariant ResultListModel::rowData(const AnalysisResult& result, int role) const {
    switch (static_cast<Role>(role)) {
    case ResultRole:
        return QVariant::fromValue(result);
    case RootNameRole:
        return result.rootName;
    case RootPathRole:
        return result.rootPath;
    case FolderNameRole:
        return result.folderName();
    case TotalSizeRole:
        return result.totalSize;
    case FileCountRole:
        return result.fileCount;
    case ScanDateRole:
        return result.scanDate;
    }
    return {};
}

void ResultListModel::resetRows(QList<AnalysisResult> results) {
    RowListModel::resetRows(std::move(results));
    emit countChanged();
}

void ResultListModel::insertRow(int row, const AnalysisResult& result) {
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

void ResultListModel::syncRows(const QList<AnalysisResult>& latest) {
    QSet<QUuid> latestIds;
    for (const AnalysisResult& result : latest)
        latestIds.insert(result.id);
    // Runs of rows to drop go in one removal each: a search that leaves 25 of 1,000 rows removes
    // a few dozen runs, not 975 rows one by one.
    bool removed = false;
    for (int end = count() - 1; end >= 0; --end) {
        if (latestIds.contains(m_rows.at(end).id))
            continue;
        int start = end;
        while (start > 0 && !latestIds.contains(m_rows.at(start - 1).id))
            --start;
        beginRemoveRows({}, start, end);
        m_rows.remove(start, end - start + 1);
        endRemoveRows();
        removed = true;
        end = start;
    }
    if (removed)
        emit countChanged();
    for (int row = 0; row < latest.size(); ++row) {
        if (row >= count() || m_rows.at(row).id != latest.at(row).id)
            insertRow(row, latest.at(row));
    }
    // Rows the two lists order differently are left over at the end; only then is the whole
    // list replaced.
    if (count() != latest.size()) {
        resetRows(latest);
        return;
    }
    for (int row = 0; row < count(); ++row) {
        if (m_rows.at(row) == latest.at(row))
            continue;
        m_rows[row] = latest.at(row);
        emit dataChanged(index(row), index(row));
    }
}

} // namespace tessarine
