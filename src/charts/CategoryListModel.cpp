#include "charts/CategoryListModel.h"

#include "charts/geometry/AxisTicks.h"
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

QVariant CategoryListModel::rowData(const CategoryStats& stats, int role) const {
    return categoryData(stats, m_result.totalSize, role);
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

void CategoryListModel::setResult(const AnalysisResult& result) {
    m_result = result;
    resetRows(categoriesLargestFirst(result));
    emit resultChanged();
}

qint64 CategoryListModel::largestSize() const {
    return m_rows.isEmpty() ? 0 : m_rows.first().totalSize;
}

int CategoryListModel::rowOf(int category) const {
    const auto found =
        std::find_if(m_rows.cbegin(), m_rows.cend(), [category](const CategoryStats& stats) {
            return int(stats.category) == category;
        });
    return found == m_rows.cend() ? -1 : int(found - m_rows.cbegin());
}

QList<double> CategoryListModel::axisTicks() const {
    return niceAxisTickValues(largestSize());
}

} // namespace tessarine
