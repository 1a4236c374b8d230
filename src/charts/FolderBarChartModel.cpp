#include "charts/FolderBarChartModel.h"

#include "charts/geometry/AxisTicks.h"
#include "design/RoleNames.h"

#include <algorithm>

namespace tessarine {

int FolderBarChartModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant FolderBarChartModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const FolderInfo& folder = *m_bars.shown.at(static_cast<size_t>(index.row()));
    switch (Role(role)) {
    case NameRole:
        return folder.name;
    case TotalSizeRole:
        return folder.totalSize;
    case ColorNameRole:
        return rawValue(folder.color);
    }
    return {};
}

QHash<int, QByteArray> FolderBarChartModel::roleNames() const {
    return roleNamesOf<Role>();
}

void FolderBarChartModel::setTree(const SharedFolderTree& tree) {
    beginResetModel();
    m_tree = tree;
    m_bars = m_tree ? folderBarsOf(*m_tree, maxFolders) : FolderBars();
    qint64 largest = 0;
    for (const FolderInfo* folder : m_bars.shown)
        largest = std::max(largest, folder->totalSize);
    m_axisTicks.clear();
    for (qint64 tick : niceAxisTicks(largest))
        m_axisTicks.append(static_cast<double>(tick));
    endResetModel();
    emit barsChanged();
}

} // namespace tessarine
