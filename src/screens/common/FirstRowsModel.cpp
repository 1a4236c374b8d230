#include "screens/common/FirstRowsModel.h"

namespace tessarine {

FirstRowsModel::FirstRowsModel(QObject* parent)
    : QSortFilterProxyModel(parent) {
    connect(this, &QAbstractItemModel::rowsInserted, this, &FirstRowsModel::countChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &FirstRowsModel::countChanged);
    connect(this, &QAbstractItemModel::modelReset, this, &FirstRowsModel::countChanged);
    connect(this, &QAbstractItemModel::layoutChanged, this, &FirstRowsModel::countChanged);
}

void FirstRowsModel::setLimit(int limit) {
    if (limit == m_limit)
        return;
    m_limit = limit;
    invalidateRowsFilter();
    emit limitChanged();
}

void FirstRowsModel::setSourceModel(QAbstractItemModel* sourceModel) {
    if (QAbstractItemModel* previous = this->sourceModel())
        disconnect(previous, nullptr, this, nullptr);
    QSortFilterProxyModel::setSourceModel(sourceModel);
    if (!sourceModel)
        return;
    // The proxy only filters the rows that arrive or leave; the rows they shift across the limit
    // are filtered again here, after the proxy has taken in the change.
    for (auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(sourceModel, signal, this, &FirstRowsModel::invalidateRowsFilter);
}

bool FirstRowsModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const {
    return !sourceParent.isValid() && sourceRow < m_limit;
}

} // namespace tessarine
