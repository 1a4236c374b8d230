#pragma once

#include "ChangeRow.h"
#include "design/RowListModel.h"

#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tessarine {

// The lines of one part of the comparison sheet.
class ChangeListModel : public RowListModel<ChangeListModel, std::vector<ChangeRow>> {
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

    using RowListModel::RowListModel;

    void setRows(std::vector<ChangeRow> rows);

signals:
    void countChanged();

private:
    QVariant rowData(const ChangeRow& row, int role) const override;
};

} // namespace tessarine
