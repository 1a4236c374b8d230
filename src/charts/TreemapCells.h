#pragma once

#include "charts/TreemapCell.h"

#include <QQuickPaintedItem>

namespace tessarine {

// Draws thousands of treemap cells in one item and finds the cell under the pointer in C++, so a
// level with many folders costs neither a QML object per cell nor a binding per cell. Later cells
// are drawn over earlier ones (nested levels after the cells they lie in) and win the hit test.
// The hovered cell is drawn last, in its hovered style and scaled by hoverScale about its centre,
// together with the later cells inside it (its nested levels).
//
// Painted rather than built from scene-graph rectangles: the software renderer took 2.9 s for the
// first frame of 5,765 plain rectangle nodes and 15 s with their borders, and it draws no custom
// geometry at all, while painting the same cells with rounded corners takes milliseconds. A hover
// change repaints only the two cells concerned, unless the whole item is due to be repainted.
// Screen readers reach each cell as an element of its own (TreemapCellsAccessible), named in the
// item's Accessible.name.
//
// The keyboard reaches the cells too: Tab focuses the item, the arrows move the hovered cell
// (so the details a pointer would show follow the keys), Space clicks it and Return acts as a
// double-click does (a click, then the double-click). While the keys lead, the hovered cell
// carries a focus ring.
class TreemapCells : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::TreemapCellList cells READ cells WRITE setCells NOTIFY cellsChanged)
    Q_PROPERTY(int hoveredIndex READ hoveredIndex NOTIFY hoveredIndexChanged)
    Q_PROPERTY(qreal hoverScale READ hoverScale WRITE setHoverScale NOTIFY hoverScaleChanged)
    // The area's own rounded corners, which no cell, hovered and grown or not, paints over.
    Q_PROPERTY(
        qreal cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY cornerRadiusChanged)

public:
    explicit TreemapCells(QQuickItem* parent = nullptr);

    const TreemapCellList& cells() const { return m_cells; }
    void setCells(const TreemapCellList& cells);
    int hoveredIndex() const { return m_hoveredIndex; }
    qreal hoverScale() const { return m_hoverScale; }
    void setHoverScale(qreal scale);
    qreal cornerRadius() const { return m_cornerRadius; }
    void setCornerRadius(qreal radius);

    // The index of the topmost cell containing (x, y), or -1.
    Q_INVOKABLE int cellAt(qreal x, qreal y) const;

    void paint(QPainter* painter) override;

signals:
    void cellsChanged();
    void hoveredIndexChanged();
    void hoverScaleChanged();
    void cornerRadiusChanged();
    void clicked(int index);
    void doubleClicked(int index);

protected:
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void setHoveredIndex(int index);
    void hoverAt(QPointF position);
    void repaintAll();
    // The cells after the hovered one that lie inside it are its nested levels: they come to the
    // front and grow with it.
    bool movesWithHovered(qsizetype index) const;
    void paintHovered(QPainter& painter) const;
    void cutCorners(QPainter& painter) const;
    // Schedules a repaint of what the hovered cell covers, drawn hovered or not.
    void updateHoveredArea();
    bool showsFocusRing() const;
    // The cell the keys start from when none is hovered: the first, or none in an empty map.
    int firstCell() const { return m_cells.count() > 0 ? 0 : -1; }

    TreemapCellList m_cells;
    int m_hoveredIndex = -1;
    qreal m_hoverScale = 1;
    qreal m_cornerRadius = 0;
    bool m_keyboardFocus = false;
    // A repaint of the whole item is due. QQuickPaintedItem merges a full update() and a later
    // update(rect) of the same frame into that rect alone, so a new set of cells with the pointer
    // resting over one of them painted only the hovered cell: while this is set, the hovered
    // area asks for the whole item again.
    bool m_repaintsAll = true;
    // The focus ring's colour in the current colour scheme.
    QColor m_accent;
    // Where the pointer last hovered, in the item's coordinates.
    QPointF m_pointer{-1, -1};
};

} // namespace tessarine
