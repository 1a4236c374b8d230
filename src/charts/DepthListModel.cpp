#include "charts/DepthListModel.h"

#include "charts/geometry/AxisTicks.h"
#include "charts/geometry/SlicePicking.h"
#include "design/RoleNames.h"

#include <algorithm>
#include <numeric>

namespace tessarine {

int DepthListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant DepthListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const auto& [depth, stats] = m_levels.at(std::size_t(index.row()));
    switch (Role(role)) {
    case DepthRole:
        return depth;
    case LabelRole:
        return QStringLiteral("Level %1").arg(depth);
    case FileCountRole:
        return stats.fileCount;
    case FolderCountRole:
        return stats.folderCount;
    case TotalSizeRole:
        return stats.totalSize;
    }
    return {};
}

QHash<int, QByteArray> DepthListModel::roleNames() const {
    return roleNamesOf<Role>();
}

void DepthListModel::setResult(const AnalysisResult& result) {
    beginResetModel();
    m_levels = result.sortedDepths();
    endResetModel();
    emit resultChanged();
}

namespace {

bool fewerFiles(const std::pair<qint64, DepthStats>& a, const std::pair<qint64, DepthStats>& b) {
    return a.second.fileCount < b.second.fileCount;
}

} // namespace

qint64 DepthListModel::largestFileCount() const {
    return m_levels.empty()
               ? 0
               : std::max_element(m_levels.cbegin(), m_levels.cend(), fewerFiles)->second.fileCount;
}

qint64 DepthListModel::totalFiles() const {
    return std::accumulate(
        m_levels.cbegin(), m_levels.cend(), qint64(0),
        [](qint64 sum, const auto& level) { return sum + level.second.fileCount; });
}

qint64 DepthListModel::peakDepth() const {
    // max_element keeps the first of equal maxima, which is the shallowest level.
    return m_levels.empty()
               ? 0
               : std::max_element(m_levels.cbegin(), m_levels.cend(), fewerFiles)->first;
}

int DepthListModel::rowAt(double x, double width) const {
    return int(sliceAt(x, width, count()).value_or(-1));
}

QList<double> DepthListModel::axisTicks() const {
    return niceAxisTickValues(largestFileCount());
}

} // namespace tessarine
