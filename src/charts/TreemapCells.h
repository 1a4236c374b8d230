#pragma once

#include "charts/TreemapCell.h"

#include <QQuickPaintedItem>
#include <QVariantAnimation>

namespace tessarine {

// Draws thousands of treemap cells in one item and finds the cell under the pointer in C++, so a
// level with many folders costs neither a QML object per cell nor a binding per cell. Later cells
// are drawn over earlier ones (nested levels after the cells they lie in) and win the hit test.
// The hovered cell is drawn last, in its hovered style and scaled by hoverScale about its centre,
// together with the later cells inside it (its nested levels). It grows into that style over
// hoverDuration and the cell the pointer left shrinks back over the same time, both eased out; a
// new style of the same cells (another selection) fades in over 0.2 s. Each frame of a change
// repaints only the cells it concerns.
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
    // Milliseconds a cell takes to grow into its hovered style and back.
    Q_PROPERTY(
        int hoverDuration READ hoverDuration WRITE setHoverDuration NOTIFY hoverDurationChanged)
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
    int hoverDuration() const { return m_hoverDuration; }
    void setHoverDuration(int duration);
    qreal cornerRadius() const { return m_cornerRadius; }
    void setCornerRadius(qreal radius);

    // The index of the topmost cell containing (x, y), or -1.
    Q_INVOKABLE int cellAt(qreal x, qreal y) const;

    void paint(QPainter* painter) override;

signals:
    void cellsChanged();
    void hoveredIndexChanged();
    void hoverScaleChanged();
    void hoverDurationChanged();
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
    // The cells after a raised one (hovered, or shrinking back) that lie inside it are its nested
    // levels: they come to the front and grow with it.
    bool movesWith(int raised, qsizetype index) const;
    bool isRaised(qsizetype index) const;
    // How far the cell is into its hovered style, from 0 to 1.
    qreal hoverAmount(int index) const;
    // The cell in its style of the moment, partway to a new one while that fades in.
    TreemapCell styledCell(qsizetype index) const;
    void paintRaised(QPainter& painter, int index) const;
    void cutCorners(QPainter& painter) const;
    // What a cell covers at its largest, grown by hoverScale.
    QRectF grown(const QRectF& rect) const;
    // Schedules a repaint of what the cell covers, grown or not.
    void updateCellArea(int index);
    void updateHoveredArea() { updateCellArea(m_hoveredIndex); }
    void updateArea(const QRectF& area);
    void hoverStep(const QVariant& progress);
    void restyleStep(const QVariant& progress);
    bool showsFocusRing() const;
    // The cell the keys start from when none is hovered: the first, or none in an empty map.
    int firstCell() const { return m_cells.count() > 0 ? 0 : -1; }

    TreemapCellList m_cells;
    int m_hoveredIndex = -1;
    qreal m_hoverScale = 1;
    int m_hoverDuration = 0;
    // The hovered cell grows as this runs from 0 to 1, the cell the pointer left shrinks back.
    QVariantAnimation m_hoverTransition;
    qreal m_hoverProgress = 1;
    int m_leavingIndex = -1;
    // How far the left cell had grown when the pointer left it.
    qreal m_leavingFrom = 0;
    // The cells' earlier style while a new one fades in, and where the two differ.
    QVariantAnimation m_restyle;
    QList<TreemapCell> m_previousStyle;
    qreal m_restyleProgress = 1;
    QRectF m_restyledArea;
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
