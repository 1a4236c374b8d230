#pragma once

#include <QAccessibleObject>
#include <QList>
#include <QMetaObject>
#include <QPointer>

namespace tessarine {

class TreemapCells;

// What screen readers see of a TreemapCells item: a list with one element per painted cell, named
// and valued by the cell's speech. The cells are not items, so Qt Quick would otherwise show the
// whole treemap as one blank element. The list itself is named by the item's Accessible.name.
class TreemapCellsAccessible : public QAccessibleObject {
public:
    explicit TreemapCellsAccessible(TreemapCells* cells);
    ~TreemapCellsAccessible() override;

    // Makes Qt ask this class for every TreemapCells item; once per process is enough.
    static void install();

    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text type) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

private:
    TreemapCells* cells() const;
    // The cells were laid out anew: the elements made for the old ones describe nothing now.
    void forgetCellElements();

    QMetaObject::Connection m_cellsChanged;
    // The registered element of each cell asked for so far, by cell index (0 where none yet).
    mutable QList<QAccessible::Id> m_cellIds;
};

} // namespace tessarine
