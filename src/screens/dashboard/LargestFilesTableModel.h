#pragma once

#include "model/Records.h"

#include <QAbstractTableModel>

namespace tessarine {

// The result's largest files as table rows, in the result's order: one column per field the
// table shows, every role available in every column so that a cell delegate picks by column.
class LargestFilesTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { NameColumn, SizeColumn, TypeColumn, ModifiedColumn, DepthColumn, ColumnCount };
    Q_ENUM(Column)

    enum Role {
        NameRole = Qt::UserRole + 1,
        PathRole,
        FolderRole,
        SizeRole,
        SizeTextRole,
        TypeTextRole,
        SymbolRole,
        ColorNameRole,
        ModificationDateRole,
        DepthRole,
        SelectedRole
    };
    Q_ENUM(Role)

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setFiles(const QList<FileInfo>& files);
    const FileInfo& file(int row) const { return m_files.at(row); }

private:
    QList<FileInfo> m_files;
};

} // namespace tessarine
