#include "screens/common/FigureListModel.h"

#include "design/RoleNames.h"

namespace tessarine {

int FigureListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_figures.size());
}

QVariant FigureListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Figure& figure = m_figures[std::size_t(index.row())];
    switch (Role(role)) {
    case TitleRole:
        return figure.title;
    case ValueRole:
        return figure.value;
    case DetailRole:
        return figure.detail;
    case IconRole:
        return figure.icon;
    case ColorRole:
        return figure.color;
    }
    return {};
}

QHash<int, QByteArray> FigureListModel::roleNames() const {
    return roleNamesOf<Role>();
}

void FigureListModel::setFigures(std::vector<Figure> figures) {
    if (figures.size() != m_figures.size()) {
        beginResetModel();
        m_figures = std::move(figures);
        endResetModel();
        return;
    }
    for (std::size_t row = 0; row < figures.size(); ++row) {
        if (figures[row] == m_figures[row])
            continue;
        m_figures[row] = std::move(figures[row]);
        const QModelIndex changed = index(int(row));
        emit dataChanged(changed, changed);
    }
}

} // namespace tessarine
