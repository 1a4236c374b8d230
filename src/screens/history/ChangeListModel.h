#pragma once

#include "ChangeRow.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tessarine {

// The lines of one part of the comparison sheet.
class ChangeListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Change lists are made by the comparison")
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum Role {
        TitleRole = Qt::UserRole + 1,
        DetailRole,
        BeforeTextRole,
        AfterTextRole,
        ChangeTextRole,
        SymbolRole,
        ColorRole,
        IconRole,
        IconColorRole,
        ShareRole,
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setRows(std::vector<ChangeRow> rows);

signals:
    void countChanged();

private:
    std::vector<ChangeRow> m_rows;
};

} // namespace tessarine
