#include "screens/dashboard/LargestFilesTableModel.h"

#include "design/RoleNames.h"
#include "model/Format.h"

#include <QFileInfo>

namespace tessarine {

int LargestFilesTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_files.size());
}

int LargestFilesTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LargestFilesTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const FileInfo& file = m_files.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return file.name;
    case PathRole:
        return file.path;
    case FolderRole:
        return QFileInfo(file.path).path();
    case SizeRole:
        return file.size;
    case SizeTextRole:
        return format::byteCount(file.size);
    case TypeTextRole:
        return file.fileExtension.isEmpty() ? format::missing()
                                            : QLatin1Char('.') + file.fileExtension;
    case SymbolRole:
        return iconName(file.category);
    case ColorNameRole:
        return colorName(file.category);
    case ModificationDateRole:
        return isKnownDate(file.modificationDate) ? file.modificationDate : QDateTime();
    case DepthRole:
        return file.depth;
    }
    return {};
}

QVariant LargestFilesTableModel::headerData(int section, Qt::Orientation orientation,
                                            int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (Column(section)) {
    case NameColumn:
        return QStringLiteral("Name");
    case SizeColumn:
        return QStringLiteral("Size");
    case TypeColumn:
        return QStringLiteral("Type");
    case ModifiedColumn:
        return QStringLiteral("Modified");
    case DepthColumn:
        return QStringLiteral("Depth");
    case ColumnCount:
        break;
    }
    return {};
}

QHash<int, QByteArray> LargestFilesTableModel::roleNames() const {
    QHash<int, QByteArray> names = roleNamesOf<Role>();
    names.insert(Qt::DisplayRole, "display");
    return names;
}

void LargestFilesTableModel::setFiles(const QList<FileInfo>& files) {
    beginResetModel();
    m_files = files;
    endResetModel();
}

} // namespace tessarine
