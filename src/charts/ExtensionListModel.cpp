#include "charts/ExtensionListModel.h"

#include "model/SaturatingSum.h"

#include <numeric>

namespace tessarine {

QVariant ExtensionListModel::rowData(const ExtensionStats& stats, int role) const {
    switch (Role(role)) {
    case DisplayNameRole:
        return stats.displayName();
    case ColorNameRole:
        return colorName(stats.category);
    case TotalSizeRole:
        return stats.totalSize;
    case FileCountRole:
        return stats.fileCount;
    case FractionRole:
        return m_result.totalSize < 1 ? 0.0 : double(stats.totalSize) / double(m_result.totalSize);
    }
    return {};
}

void ExtensionListModel::setResult(const AnalysisResult& result) {
    m_result = result;
    resetRows(
        result.sortedExtensions().first(std::min<qsizetype>(listed, result.extensionStats.size())));
    emit rowsChanged();
}

void ExtensionListModel::setShowAll(bool showAll) {
    if (showAll == m_showAll)
        return;
    const int all = int(m_rows.size());
    const int shorter = std::min(all, shownAtFirst);
    // Rows past the first ten come and go; the model changes between the begin and end calls.
    if (all > shorter) {
        if (showAll)
            beginInsertRows({}, shorter, all - 1);
        else
            beginRemoveRows({}, shorter, all - 1);
    }
    m_showAll = showAll;
    if (all > shorter) {
        if (showAll)
            endInsertRows();
        else
            endRemoveRows();
    }
    emit rowsChanged();
}

int ExtensionListModel::count() const {
    const int all = int(m_rows.size());
    return m_showAll ? all : std::min(all, shownAtFirst);
}

qint64 ExtensionListModel::hiddenSize() const {
    return std::accumulate(m_rows.cbegin() + count(), m_rows.cend(), qint64(0),
                           [](qint64 sum, const ExtensionStats& stats) {
                               return saturatingAdd(sum, stats.totalSize);
                           });
}

} // namespace tessarine
