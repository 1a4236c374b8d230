#pragma once

#include "design/RowListModel.h"

#include <QDateTime>
#include <QString>
#include <QUuid>
#include <QtQml/qqmlregistration.h>

#include <deque>

namespace tessarine {

// One line of the activity log.
struct ActivityLogEntry {
    QUuid id;
    QString timestamp; // "HH:mm:ss" when the entry was made
    QString name;      // last path component
    bool isFolder = false;
    QString size; // a formatted size; the scanning screen leaves it empty
};

// The paths the scanner reported, most recent first. Only the newest entries are kept, so a long
// scan costs the screen a fixed amount of memory.
class ActivityLogModel : public RowListModel<ActivityLogModel, std::deque<ActivityLogEntry>> {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
    Q_PROPERTY(QString currentPath READ currentPath WRITE setCurrentPath NOTIFY currentPathChanged)

public:
    enum Role { IdRole = Qt::UserRole + 1, TimestampRole, NameRole, IsFolderRole, SizeRole };
    Q_ENUM(Role)

    static constexpr int capacity = 100;

    using RowListModel::RowListModel;

    // The path the scan reports now. Each change to a non-empty path logs one entry; an empty path
    // (the scanner between items) is not logged, but the same path reported again after it is.
    QString currentPath() const { return m_currentPath; }
    void setCurrentPath(const QString& path);
    void setCurrentPath(const QString& path, const QDateTime& now);

signals:
    void countChanged();
    void currentPathChanged();

private:
    QVariant rowData(const ActivityLogEntry& entry, int role) const override;
    void record(const QString& path, const QDateTime& now);

    QString m_currentPath;
};

} // namespace tessarine
