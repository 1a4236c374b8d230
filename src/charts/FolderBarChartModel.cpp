#include "charts/FolderBarChartModel.h"

#include "charts/geometry/AxisTicks.h"

#include <algorithm>
#include <utility>

namespace tessarine {

QVariant FolderBarChartModel::rowData(const FolderInfo* const& folder, int role) const {
    switch (Role(role)) {
    case NameRole:
        return folder->name;
    case TotalSizeRole:
        return folder->totalSize;
    case ColorNameRole:
        return rawValue(folder->color);
    }
    return {};
}

void FolderBarChartModel::setTree(const SharedFolderTree& tree) {
    // The rows point into the tree they were taken from: it stays until they are replaced.
    const SharedFolderTree previous = std::exchange(m_tree, tree);
    FolderBars bars = m_tree ? folderBarsOf(*m_tree, maxFolders) : FolderBars();
    qint64 largest = 0;
    for (const FolderInfo* folder : bars.shown)
        largest = std::max(largest, folder->totalSize);
    m_axisTicks.clear();
    for (qint64 tick : niceAxisTicks(largest))
        m_axisTicks.append(static_cast<double>(tick));
    m_folderCount = bars.folderCount;
    m_shownSize = bars.shownSize;
    resetRows(std::move(bars.shown));
    emit barsChanged();
}

} // namespace tessarine
