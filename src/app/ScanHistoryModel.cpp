#include "ScanHistoryModel.h"

#include <QMetaEnum>

namespace tessarine {

int ScanHistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ScanHistoryModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const ResultHandle& result = m_results.at(index.row());
    switch (static_cast<Role>(role)) {
    case ResultRole:
        return QVariant::fromValue(result);
    case IdRole:
        return result.id();
    case RootNameRole:
        return result.rootName();
    case RootPathRole:
        return result.rootPath();
    case FolderNameRole:
        return result.folderName();
    case TotalSizeRole:
        return result.totalSize();
    case FileCountRole:
        return result.fileCount();
    case ScanDateRole:
        return result.scanDate();
    }
    return {};
}

// Role names come from the enum itself ("RootNameRole" -> "rootName"), so a new role cannot be
// forgotten here.
QHash<int, QByteArray> ScanHistoryModel::roleNames() const {
    const QMetaEnum roles = QMetaEnum::fromType<Role>();
    QHash<int, QByteArray> names;
    for (int i = 0; i < roles.keyCount(); ++i) {
        QByteArray name = roles.key(i);
        name.chop(qstrlen("Role"));
        name[0] = static_cast<char>(QChar::toLower(name[0]));
        names.insert(roles.value(i), name);
    }
    return names;
}

ResultHandle ScanHistoryModel::at(int row) const {
    return row >= 0 && row < count() ? m_results.at(row) : ResultHandle();
}

void ScanHistoryModel::reset(QList<ResultHandle> results) {
    beginResetModel();
    m_results = std::move(results);
    endResetModel();
    emit countChanged();
}

void ScanHistoryModel::prepend(const ResultHandle& result) {
    beginInsertRows({}, 0, 0);
    m_results.prepend(result);
    endInsertRows();
    emit countChanged();
}

void ScanHistoryModel::removeAll(const QUuid& id) {
    for (int row = count() - 1; row >= 0; --row) {
        if (m_results.at(row).get()->id != id)
            continue;
        beginRemoveRows({}, row, row);
        m_results.removeAt(row);
        endRemoveRows();
        emit countChanged();
    }
}

} // namespace tessarine
