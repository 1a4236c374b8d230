#include "ScanHistoryModel.h"

#include "RoleNames.h"

namespace tessarine {

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
    resetRows(std::move(results));
}

void ScanHistoryModel::prepend(const AnalysisResult& result) {
    insertRow(0, result);
}

void ScanHistoryModel::removeAll(const QUuid& id) {
    for (int row = count() - 1; row >= 0; --row) {
        if (m_results.at(row).id == id)
            removeRowAt(row);
    }
}

} // namespace tessarine
