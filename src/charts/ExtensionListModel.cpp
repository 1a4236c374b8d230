#include "charts/ExtensionListModel.h"

#include "design/RoleNames.h"

#include <numeric>

namespace tessarine {

int ExtensionListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ExtensionListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const ExtensionStats& stats = m_extensions.at(index.row());
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
        return m_totalSize < 1 ? 0.0 : double(stats.totalSize) / double(m_totalSize);
    }
    return {};
}

QHash<int, QByteArray> ExtensionListModel::roleNames() const {
    return roleNamesOf<Role>();
}

void ExtensionListModel::setResult(const AnalysisResult& result) {
    beginResetModel();
    m_extensions =
        result.sortedExtensions().first(std::min<qsizetype>(listed, result.extensionStats.size()));
    m_totalSize = result.totalSize;
    endResetModel();
    emit rowsChanged();
}

void ExtensionListModel::setShowAll(bool showAll) {
    if (showAll == m_showAll)
        return;
    const int all = int(m_extensions.size());
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
    const int all = int(m_extensions.size());
    return m_showAll ? all : std::min(all, shownAtFirst);
}

qint64 ExtensionListModel::hiddenSize() const {
    return std::accumulate(
        m_extensions.cbegin() + count(), m_extensions.cend(), qint64(0),
        [](qint64 sum, const ExtensionStats& stats) { return sum + stats.totalSize; });
}

} // namespace tessarine
