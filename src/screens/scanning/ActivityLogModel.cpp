#include "screens/scanning/ActivityLogModel.h"

#include "model/Format.h"
#include "model/PathNames.h"
#include "screens/scanning/ScanPaths.h"

namespace tessarine {

QVariant ActivityLogModel::rowData(const ActivityLogEntry& entry, int role) const {
    switch (Role(role)) {
    case IdRole:
        return entry.id;
    case TimestampRole:
        return entry.timestamp;
    case NameRole:
        return entry.name;
    case IsFolderRole:
        return entry.isFolder;
    case SizeRole:
        return entry.size;
    }
    return {};
}

void ActivityLogModel::setCurrentPath(const QString& path) {
    setCurrentPath(path, QDateTime::currentDateTime());
}

void ActivityLogModel::setCurrentPath(const QString& path, const QDateTime& now) {
    if (path == m_currentPath)
        return;
    m_currentPath = path;
    if (!path.isEmpty())
        record(path, now);
    emit currentPathChanged();
}

void ActivityLogModel::record(const QString& path, const QDateTime& now) {
    const bool full = m_rows.size() >= std::size_t(capacity);
    if (full) {
        beginRemoveRows({}, capacity - 1, capacity - 1);
        m_rows.pop_back();
        endRemoveRows();
    }
    beginInsertRows({}, 0, 0);
    m_rows.push_front({QUuid::createUuid(), format::clockTime(now), lastPathComponent(path),
                       looksLikeFolder(path), QString()});
    endInsertRows();
    if (!full)
        emit countChanged();
}

} // namespace tessarine
