#pragma once

#include "screens/dashboard/LargestFilesTableModel.h"

#include <QSet>
#include <QSortFilterProxyModel>
#include <QUuid>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// What the largest-files table shows of the result bound to it: the files whose name, path or
// extension contains the search text, sorted by the chosen column, with the selected files. The
// selection is kept by file, so a search that hides a selected file, or a new sort, keeps it.
class LargestFilesRows : public QSortFilterProxyModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::AnalysisResult result READ result WRITE setResult NOTIFY fileCountChanged)
    Q_PROPERTY(int fileCount READ fileCount NOTIFY fileCountChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int sortColumn READ sortColumn NOTIFY sortChanged)
    Q_PROPERTY(Qt::SortOrder sortOrder READ sortOrder NOTIFY sortChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)
    Q_PROPERTY(QStringList selectedPaths READ selectedPaths NOTIFY selectionChanged)
    // The row the keyboard moves from, or -1.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY selectionChanged)

public:
    explicit LargestFilesRows(QObject* parent = nullptr);

    const AnalysisResult& result() const { return m_result; }
    void setResult(const AnalysisResult& result);
    int fileCount() const { return m_files.rowCount(); }
    QString searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    int sortColumn() const { return QSortFilterProxyModel::sortColumn(); }
    Qt::SortOrder sortOrder() const { return QSortFilterProxyModel::sortOrder(); }
    int selectedCount() const { return int(m_selected.size()); }
    QStringList selectedPaths() const;
    int currentRow() const;

    // A click on a column header: the same column again turns its order, another sortable column
    // sorts by it (names A to Z, sizes and dates largest and newest first).
    Q_INVOKABLE void sortBy(int column);
    // A click on row: alone, or with Ctrl added to or taken from the selection, or with Shift
    // the rows from the last clicked one to this one.
    Q_INVOKABLE void select(int row, int modifiers = Qt::NoModifier);
    Q_INVOKABLE void clearSelection();
    Q_INVOKABLE QString pathAt(int row) const;

    QVariant data(const QModelIndex& index, int role) const override;

signals:
    void fileCountChanged();
    void searchTextChanged();
    void sortChanged();
    void selectionChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    const FileInfo& fileAt(int row) const;
    void announceSelection();

    AnalysisResult m_result;
    LargestFilesTableModel m_files;
    QString m_searchText;
    QSet<QUuid> m_selected;
    QUuid m_anchor;
};

} // namespace tessarine
