#include "ChangeListModel.h"

namespace tessarine {

QVariant ChangeListModel::rowData(const ChangeRow& row, int role) const {
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
    case ShareRole:
        return row.share;
    }
    return {};
}

void ChangeListModel::setRows(std::vector<ChangeRow> rows) {
    resetRows(std::move(rows));
    emit countChanged();
}

} // namespace tessarine
