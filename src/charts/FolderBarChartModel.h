#pragma once

#include "charts/geometry/FolderBars.h"
#include "design/RowListModel.h"

#include <QList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The bars of the "Largest Folders" chart for the tree bound to it, derived once per tree, with
// the figures of its header, axis and summary line.
class FolderBarChartModel
    : public RowListModel<FolderBarChartModel, std::vector<const FolderInfo*>> {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::SharedFolderTree tree READ tree WRITE setTree)
    Q_PROPERTY(int count READ count NOTIFY barsChanged)
    Q_PROPERTY(qint64 folderCount READ folderCount NOTIFY barsChanged)
    Q_PROPERTY(qint64 shownSize READ shownSize NOTIFY barsChanged)
    // The byte counts where the axis is labelled, from 0 to the axis end (as numbers QML can list).
    Q_PROPERTY(QList<double> axisTicks READ axisTicks NOTIFY barsChanged)

public:
    enum Role { NameRole = Qt::UserRole + 1, TotalSizeRole, ColorNameRole };
    Q_ENUM(Role)

    static constexpr qsizetype maxFolders = 15;

    using RowListModel::RowListModel;

    const SharedFolderTree& tree() const { return m_tree; }
    void setTree(const SharedFolderTree& tree);
    int count() const { return rowCount(); }
    qint64 folderCount() const { return m_folderCount; }
    qint64 shownSize() const { return m_shownSize; }
    QList<double> axisTicks() const { return m_axisTicks; }

signals:
    void barsChanged();

private:
    QVariant rowData(const FolderInfo* const& folder, int role) const override;

    // Keeps the folders the bars point at alive.
    SharedFolderTree m_tree;
    qint64 m_folderCount = 0;
    qint64 m_shownSize = 0;
    QList<double> m_axisTicks;
};

} // namespace tessarine
