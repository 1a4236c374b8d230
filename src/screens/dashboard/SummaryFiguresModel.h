#pragma once

#include "screens/common/FigureListModel.h"
#include "screens/dashboard/SummaryFigures.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The summary cards of the result bound to it.
class SummaryFiguresModel : public FigureListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(qint64 totalSize MEMBER m_totalSize NOTIFY totalsChanged)
    Q_PROPERTY(qint64 fileCount MEMBER m_fileCount NOTIFY totalsChanged)
    Q_PROPERTY(qint64 folderCount MEMBER m_folderCount NOTIFY totalsChanged)
    Q_PROPERTY(qint64 maxDepth MEMBER m_maxDepth NOTIFY totalsChanged)

public:
    explicit SummaryFiguresModel(QObject* parent = nullptr);

signals:
    void totalsChanged();

private:
    qint64 m_totalSize = 0;
    qint64 m_fileCount = 0;
    qint64 m_folderCount = 0;
    qint64 m_maxDepth = 0;
};

} // namespace tessarine
