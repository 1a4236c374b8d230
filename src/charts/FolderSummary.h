#pragma once

#include "model/Records.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The figures of one folder that the treemap's details bar shows, without the subtree a
// FolderInfo would carry into every copy.
struct FolderSummary {
    Q_GADGET
    QML_VALUE_TYPE(folderSummary)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(qint64 totalSize MEMBER totalSize)
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 subfolderCount MEMBER subfolderCount)
    Q_PROPERTY(QString colorName MEMBER colorName)

public:
    QString name;
    qint64 totalSize = 0;
    qint64 fileCount = 0;
    qint64 subfolderCount = 0;
    QString colorName;

    static FolderSummary of(const FolderInfo& folder) {
        return {folder.name, folder.totalSize, folder.fileCount,
                static_cast<qint64>(folder.childFolders.size()), rawValue(folder.color)};
    }

    bool operator==(const FolderSummary&) const = default;
};

} // namespace tessarine
