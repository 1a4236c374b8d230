#include "charts/CategoryListModel.h"

#include "charts/geometry/AxisTicks.h"
#include "design/RoleNames.h"
#include "model/Format.h"

#include <algorithm>

namespace tessarine {

QList<CategoryStats> categoriesLargestFirst(const AnalysisResult& result) {
    QList<CategoryStats> categories = result.categoryBreakdown;
    std::stable_sort(
        categories.begin(), categories.end(),
        [](const CategoryStats& a, const CategoryStats& b) { return a.totalSize > b.totalSize; });
    return categories;
}

int CategoryListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant CategoryListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    return categoryData(m_categories.at(index.row()), m_totalSize, role);
}

QVariant CategoryListModel::categoryData(const CategoryStats& stats, qint64 totalSize, int role) {
    switch (Role(role)) {
    case CategoryRole:
        return int(stats.category);
    case NameRole:
        return rawValue(stats.category);
    case SymbolRole:
        return iconName(stats.category);
    case ColorNameRole:
        return colorName(stats.category);
    case TotalSizeRole:
        return stats.totalSize;
    case FileCountRole:
        return stats.fileCount;
    case ShareRole:
        return format::share(double(stats.totalSize), double(totalSize));
    }
    return {};
}

QHash<int, QByteArray> CategoryListModel::roleNames() const {
    return roleNamesOf<Role>();
}

void CategoryListModel::setResult(const AnalysisResult& result) {
    beginResetModel();
    m_categories = categoriesLargestFirst(result);
    m_totalSize = result.totalSize;
    endResetModel();
    emit resultChanged();
}

qint64 CategoryListModel::largestSize() const {
    return m_categories.isEmpty() ? 0 : m_categories.first().totalSize;
}

int CategoryListModel::rowOf(int category) const {
    const auto found = std::find_if(
        m_categories.cbegin(), m_categories.cend(),
        [category](const CategoryStats& stats) { return int(stats.category) == category; });
    return found == m_categories.cend() ? -1 : int(found - m_categories.cbegin());
}

QList<double> CategoryListModel::axisTicks() const {
    return niceAxisTickValues(largestSize());
}

} // namespace tessarine
