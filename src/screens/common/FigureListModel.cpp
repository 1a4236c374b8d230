#include "screens/common/FigureListModel.h"

namespace tessarine {

QVariant FigureListModel::rowData(const Figure& figure, int role) const {
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

void FigureListModel::setFigures(std::vector<Figure> figures) {
    if (figures.size() != m_rows.size()) {
        resetRows(std::move(figures));
        return;
    }
    for (std::size_t row = 0; row < figures.size(); ++row) {
        if (figures[row] == m_rows[row])
            continue;
        m_rows[row] = std::move(figures[row]);
        const QModelIndex changed = index(int(row));
        emit dataChanged(changed, changed);
    }
}

} // namespace tessarine
