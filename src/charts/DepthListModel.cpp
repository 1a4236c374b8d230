#include "charts/DepthListModel.h"

#include "charts/geometry/AxisTicks.h"
#include "charts/geometry/SlicePicking.h"

#include <algorithm>
#include <numeric>

namespace tessarine {

QVariant DepthListModel::rowData(const Row& level, int role) const {
    const auto& [depth, stats] = level;
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

void DepthListModel::setResult(const AnalysisResult& result) {
    m_result = result;
    resetRows(result.sortedDepths());
    emit resultChanged();
}

namespace {

bool fewerFiles(const std::pair<qint64, DepthStats>& a, const std::pair<qint64, DepthStats>& b) {
    return a.second.fileCount < b.second.fileCount;
}

} // namespace

qint64 DepthListModel::largestFileCount() const {
    return m_rows.empty()
               ? 0
               : std::max_element(m_rows.cbegin(), m_rows.cend(), fewerFiles)->second.fileCount;
}

qint64 DepthListModel::totalFiles() const {
    return std::accumulate(
        m_rows.cbegin(), m_rows.cend(), qint64(0),
        [](qint64 sum, const auto& level) { return sum + level.second.fileCount; });
}

qint64 DepthListModel::peakDepth() const {
    // max_element keeps the first of equal maxima, which is the shallowest level.
    return m_rows.empty() ? 0 : std::max_element(m_rows.cbegin(), m_rows.cend(), fewerFiles)->first;
}

int DepthListModel::rowAt(double x, double width) const {
    return int(sliceAt(x, width, count()).value_or(-1));
}

QList<double> DepthListModel::axisTicks() const {
    return niceAxisTickValues(largestFileCount());
}

} // namespace tessarine
