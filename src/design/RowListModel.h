#pragma once

#include "design/RoleNames.h"

#include <QAbstractListModel>

namespace tessarine {

// The frame of a list a view shows: the rows, each row's value for a role, the role names taken
// from Model::Role, and a reset with new rows. Model is the class deriving from this one: a
// template cannot carry Q_OBJECT, so the class with the role enumeration and the QML type is the
// derived one.
template <typename Model, typename Rows> class RowListModel : public QAbstractListModel {
public:
    using Row = typename Rows::value_type;

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : shownRowCount();
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
            return {};
        return rowData(m_rows[index.row()], role);
    }

    QHash<int, QByteArray> roleNames() const override {
        return roleNamesOf<typename Model::Role>();
    }

protected:
    virtual QVariant rowData(const Row& row, int role) const = 0;
    // How many of the rows the view shows: all of them, unless a list holds some back.
    virtual int shownRowCount() const { return int(m_rows.size()); }

    void resetRows(Rows rows) {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }

    Rows m_rows;
};

} // namespace tessarine
