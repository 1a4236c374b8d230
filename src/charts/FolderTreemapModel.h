#pragma once

#include "charts/FolderSummary.h"
#include "charts/TreemapCell.h"
#include "charts/geometry/NestedTreemap.h"

#include <QObject>
#include <QSizeF>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tessarine {

// The folder treemap card's state: the folders drilled into, the cells of the current folder's
// nested levels laid out for the area, and the folder the details bar describes. The cells are
// laid out again whenever the folder or the area changes, and coloured again when the desktop
// switches between light and dark; nothing else is kept between layouts.
class FolderTreemapModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    // A new tree starts again at its root.
    Q_PROPERTY(tessarine::SharedFolderTree tree READ tree WRITE setTree)
    Q_PROPERTY(QSizeF areaSize READ areaSize WRITE setAreaSize NOTIFY areaSizeChanged)
    Q_PROPERTY(tessarine::TreemapCellList cells READ cells NOTIFY cellsChanged)
    Q_PROPERTY(QString rootName READ rootName NOTIFY pathChanged)
    // The names of the folders drilled into, outermost first; empty at the root.
    Q_PROPERTY(QStringList pathNames READ pathNames NOTIFY pathChanged)
    // The cell under the pointer, or -1.
    Q_PROPERTY(int hoveredIndex READ hoveredIndex WRITE setHoveredIndex NOTIFY detailsChanged)
    // The hovered folder, or the current folder when none is hovered.
    Q_PROPERTY(tessarine::FolderSummary details READ details NOTIFY detailsChanged)

public:
    explicit FolderTreemapModel(QObject* parent = nullptr);

    const SharedFolderTree& tree() const { return m_tree; }
    void setTree(const SharedFolderTree& tree);
    QSizeF areaSize() const { return m_areaSize; }
    void setAreaSize(const QSizeF& size);
    const TreemapCellList& cells() const { return m_cells; }
    QString rootName() const;
    QStringList pathNames() const;
    int hoveredIndex() const { return m_hoveredIndex; }
    void setHoveredIndex(int index);
    FolderSummary details() const;

    // The folder of a cell, or null.
    const FolderInfo* folderAt(int cellIndex) const;
    // The outermost cell showing the folder named name, or -1; and where a cell lies in the area.
    // What a person finds by looking, for scripted walks through the treemap.
    Q_INVOKABLE int cellNamed(const QString& name) const;
    Q_INVOKABLE QRectF cellRect(int cellIndex) const;

    // Shows the contents of the cell's folder when it has sub-folders; returns whether it did.
    Q_INVOKABLE bool drillDown(int cellIndex);
    Q_INVOKABLE void back();
    Q_INVOKABLE void goToRoot();
    // Back out to the path entry at pathIndex, keeping it.
    Q_INVOKABLE void goTo(int pathIndex);

signals:
    void areaSizeChanged();
    void cellsChanged();
    void pathChanged();
    void detailsChanged();
    // The folder shown changed; the view animates the change.
    void navigated();

private:
    const FolderInfo* currentFolder() const;
    void setPath(std::vector<const FolderInfo*> path);
    void relayout();
    // The laid-out cells in the current appearance's colours.
    TreemapCellList styledCells() const;

    SharedFolderTree m_tree;
    std::vector<const FolderInfo*> m_path;
    QSizeF m_areaSize;
    NestedTreemap m_treemap;
    TreemapCellList m_cells;
    int m_hoveredIndex = -1;
};

} // namespace tessarine
