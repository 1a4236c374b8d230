#include "ChangeListModel.h"

#include "design/RoleNames.h"

namespace tessarine {

int ChangeListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ChangeListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const ChangeRow& row = m_rows.at(static_cast<std::size_t>(index.row()));
    switch (static_cast<Role>(role)) {
    case TitleRole:
        return row.title;
    case DetailRole:
        return row.detail;
    case BeforeTextRole:
        return row.beforeText;
    case AfterTextRole:
        return row.afterText;
    case ChangeTextRole:
        return row.changeText;
    case SymbolRole:
        return row.symbol;
    case ColorRole:
        return row.color;
    case IconRole:
        return row.icon;
    case IconColorRole:
        return row.iconColor;
    }
    return {};
}

QHash<int, QByteArray> ChangeListModel::roleNames() const {
    return roleNamesOf<Role>();
}

void ChangeListModel::setRows(std::vector<ChangeRow> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
    emit countChanged();
}

} // namespace tessarine
