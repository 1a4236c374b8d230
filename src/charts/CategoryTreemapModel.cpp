#include "charts/CategoryTreemapModel.h"

#include "charts/TreemapCellStyle.h"
#include "design/ColorScheme.h"
#include "design/RoleNames.h"

#include <algorithm>

namespace tessarine {

CategoryTreemapModel::CategoryTreemapModel(QObject* parent)
    : QAbstractListModel(parent) {
    connect(&ColorScheme::instance(), &ColorScheme::darkChanged, this,
            &CategoryTreemapModel::cellsChanged);
}

int CategoryTreemapModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_rects.size());
}

QVariant CategoryTreemapModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const TreeMapRect& cell = m_rects.at(std::size_t(index.row()));
    const CategoryStats& stats = cell.stat;
    switch (role) {
    case CellXRole:
        return cell.rect.x();
    case CellYRole:
        return cell.rect.y();
    case CellWidthRole:
        return cell.rect.width();
    case CellHeightRole:
        return cell.rect.height();
    }
    return CategoryListModel::categoryData(stats, m_result.totalSize, role);
}

QHash<int, QByteArray> CategoryTreemapModel::roleNames() const {
    QHash<int, QByteArray> names = roleNamesOf<CategoryListModel::Role>();
    names.insert(roleNamesOf<Role>());
    return names;
}

void CategoryTreemapModel::setResult(const AnalysisResult& result) {
    m_categories = categoriesLargestFirst(result);
    m_result = result;
    relayout();
}

void CategoryTreemapModel::setAreaWidth(qreal width) {
    if (width == m_area.width())
        return;
    m_area.setWidth(width);
    relayout();
}

void CategoryTreemapModel::setAreaHeight(qreal height) {
    if (height == m_area.height())
        return;
    m_area.setHeight(height);
    relayout();
}

void CategoryTreemapModel::setSelectedCategory(int category) {
    if (category == m_selected)
        return;
    m_selected = category;
    emit cellsChanged();
}

TreemapCellList CategoryTreemapModel::cells() const {
    const std::optional<FileCategory> selected =
        m_selected < 0 ? std::nullopt : std::optional(FileCategory(m_selected));
    return TreemapCellList(categoryTreemapCells(m_rects, m_result.totalSize, selected));
}

int CategoryTreemapModel::categoryAt(int row) const {
    return row >= 0 && row < rowCount() ? int(m_rects.at(std::size_t(row)).stat.category) : -1;
}

// The same categories keep their rows, and their labels follow in place whatever changed (a new
// size, new figures). Made anew on every step of a window's layout, the labels were built a dozen
// times over before the dashboard's first frame.
void CategoryTreemapModel::relayout() {
    std::vector<TreeMapRect> rects =
        calculateTreeMapRects(m_categories, m_result.totalSize, m_area);
    const bool sameCells =
        std::equal(rects.cbegin(), rects.cend(), m_rects.cbegin(), m_rects.cend(),
                   [](const TreeMapRect& a, const TreeMapRect& b) {
                       return a.stat.category == b.stat.category;
                   });
    if (sameCells && !rects.empty()) {
        m_rects = std::move(rects);
        emit dataChanged(index(0), index(rowCount() - 1));
    } else {
        beginResetModel();
        m_rects = std::move(rects);
        endResetModel();
    }
    emit cellsChanged();
}

} // namespace tessarine
