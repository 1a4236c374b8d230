#include "ScanHistoryModel.h"

#include "RoleNames.h"

#include <QSet>

namespace tessarine {

int ScanHistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ScanHistoryModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const AnalysisResult& result = m_results.at(index.row());
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

QHash<int, QByteArray> ScanHistoryModel::roleNames() const {
    return roleNamesOf<Role>();
}

void ScanHistoryModel::reset(QList<AnalysisResult> results) {
    beginResetModel();
    m_results = std::move(results);
    endResetModel();
    emit countChanged();
}

void ScanHistoryModel::prepend(const AnalysisResult& result) {
    beginInsertRows({}, 0, 0);
    m_results.prepend(result);
    endInsertRows();
    emit countChanged();
}

void ScanHistoryModel::removeAll(const QUuid& id) {
    for (int row = count() - 1; row >= 0; --row) {
        if (m_results.at(row).id != id)
            continue;
        beginRemoveRows({}, row, row);
        m_results.removeAt(row);
        endRemoveRows();
        emit countChanged();
    }
}

void ScanHistoryModel::sync(const QList<AnalysisResult>& latest) {
    QSet<QUuid> latestIds;
    for (const AnalysisResult& result : latest)
        latestIds.insert(result.id);
    for (int row = count() - 1; row >= 0; --row) {
        if (!latestIds.contains(m_results.at(row).id))
            removeAll(m_results.at(row).id);
    }
    for (int row = 0; row < latest.size(); ++row) {
        if (row < count() && m_results.at(row).id == latest.at(row).id)
            continue;
        beginInsertRows({}, row, row);
        m_results.insert(row, latest.at(row));
        endInsertRows();
        emit countChanged();
    }
    // Rows the two lists order differently (a scan whose date was edited) are left over at the
    // end; only then is the whole list replaced.
    if (count() != latest.size())
        reset(latest);
}

} // namespace tessarine
