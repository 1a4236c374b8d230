#include "screens/dashboard/LargestFilesRows.h"

#include <QCollator>

namespace tessarine {

LargestFilesRows::LargestFilesRows(QObject* parent)
    : QSortFilterProxyModel(parent) {
    setSourceModel(&m_files);
    // Stable, so that equal sizes keep the result's order.
    sort(LargestFilesTableModel::SizeColumn, Qt::DescendingOrder);
}

void LargestFilesRows::setResult(const AnalysisResult& result) {
    m_result = result;
    m_selected.clear();
    m_anchor = {};
    m_files.setFiles(result.largestFiles);
    emit fileCountChanged();
    emit selectionChanged();
}

void LargestFilesRows::setSearchText(const QString& text) {
    if (text == m_searchText)
        return;
    m_searchText = text;
    invalidateRowsFilter();
    emit searchTextChanged();
}

bool LargestFilesRows::filterAcceptsRow(int sourceRow, const QModelIndex&) const {
    if (m_searchText.isEmpty())
        return true;
    const FileInfo& file = m_files.file(sourceRow);
    return file.name.contains(m_searchText, Qt::CaseInsensitive) ||
           file.path.contains(m_searchText, Qt::CaseInsensitive) ||
           file.fileExtension.contains(m_searchText, Qt::CaseInsensitive);
}

bool LargestFilesRows::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const FileInfo& a = m_files.file(left.row());
    const FileInfo& b = m_files.file(right.row());
    switch (left.column()) {
    case LargestFilesTableModel::NameColumn: {
        static const QCollator collator = [] {
            QCollator made;
            made.setCaseSensitivity(Qt::CaseInsensitive);
            made.setNumericMode(true);
            return made;
        }();
        return collator.compare(a.name, b.name) < 0;
    }
    case LargestFilesTableModel::ModifiedColumn:
        return a.modificationDate < b.modificationDate;
    default:
        return a.size < b.size;
    }
}

void LargestFilesRows::sortBy(int column) {
    Qt::SortOrder order = Qt::AscendingOrder;
    if (column == sortColumn())
        order = sortOrder() == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    else if (column == LargestFilesTableModel::SizeColumn ||
             column == LargestFilesTableModel::ModifiedColumn)
        order = Qt::DescendingOrder;
    else if (column != LargestFilesTableModel::NameColumn)
        return;
    sort(column, order);
    emit sortChanged();
}

const FileInfo& LargestFilesRows::fileAt(int row) const {
    return m_files.file(mapToSource(index(row, 0)).row());
}

void LargestFilesRows::select(int row, int modifiers) {
    if (row < 0 || row >= rowCount())
        return;
    const QUuid clicked = fileAt(row).id;
    const int anchorRow = [this] {
        for (int other = 0; other < rowCount(); ++other)
            if (fileAt(other).id == m_anchor)
                return other;
        return -1;
    }();
    if ((modifiers & Qt::ShiftModifier) && anchorRow >= 0) {
        if (!(modifiers & Qt::ControlModifier))
            m_selected.clear();
        for (int between = std::min(row, anchorRow); between <= std::max(row, anchorRow); ++between)
            m_selected.insert(fileAt(between).id);
        // The anchor stays, so that Shift-clicks one after another pivot on it.
    } else if (modifiers & Qt::ControlModifier) {
        if (!m_selected.remove(clicked))
            m_selected.insert(clicked);
        m_anchor = clicked;
    } else {
        m_selected = {clicked};
        m_anchor = clicked;
    }
    announceSelection();
}

void LargestFilesRows::clearSelection() {
    m_selected.clear();
    m_anchor = {};
    announceSelection();
}

void LargestFilesRows::announceSelection() {
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                         {LargestFilesTableModel::SelectedRole});
    emit selectionChanged();
}

QStringList LargestFilesRows::selectedPaths() const {
    // In the order the table shows, then those the search hides, in the result's order.
    QStringList paths;
    for (int row = 0; row < rowCount(); ++row)
        if (m_selected.contains(fileAt(row).id))
            paths.append(fileAt(row).path);
    for (int source = 0; source < m_files.rowCount(); ++source) {
        const FileInfo& file = m_files.file(source);
        if (m_selected.contains(file.id) && !paths.contains(file.path))
            paths.append(file.path);
    }
    return paths;
}

int LargestFilesRows::currentRow() const {
    for (int row = 0; row < rowCount(); ++row)
        if (fileAt(row).id == m_anchor)
            return row;
    return -1;
}

QString LargestFilesRows::pathAt(int row) const {
    return row >= 0 && row < rowCount() ? fileAt(row).path : QString();
}

QVariant LargestFilesRows::data(const QModelIndex& index, int role) const {
    if (role == LargestFilesTableModel::SelectedRole)
        return index.isValid() && m_selected.contains(fileAt(index.row()).id);
    return QSortFilterProxyModel::data(index, role);
}

} // namespace tessarine
