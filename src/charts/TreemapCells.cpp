#include "charts/TreemapCells.h"

#include "charts/TreemapCellsNode.h"

namespace tessarine {

TreemapCells::TreemapCells(QQuickItem* parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
}

void TreemapCells::setCells(const TreemapCellList& cells) {
    if (cells == m_cells)
        return;
    m_cells = cells;
    m_cellsDirty = true;
    // What was under the pointer is another cell now, or none.
    setHoveredIndex(-1);
    update();
    emit cellsChanged();
}

void TreemapCells::setHoverScale(qreal scale) {
    if (qFuzzyCompare(scale, m_hoverScale))
        return;
    m_hoverScale = scale;
    m_hoverDirty = true;
    update();
    emit hoverScaleChanged();
}

int TreemapCells::cellAt(qreal x, qreal y) const {
    const QList<TreemapCell>& cells = m_cells.cells();
    for (qsizetype i = cells.size() - 1; i >= 0; --i) {
        const QRectF& rect = cells[i].rect;
        // Half-open like the layout's slices, so a point on a shared edge belongs to one cell.
        if (x >= rect.left() && x < rect.right() && y >= rect.top() && y < rect.bottom())
            return static_cast<int>(i);
    }
    return -1;
}

void TreemapCells::setHoveredIndex(int index) {
    if (index == m_hoveredIndex)
        return;
    m_hoveredIndex = index;
    m_hoverDirty = true;
    update();
    emit hoveredIndexChanged();
}

QSGNode* TreemapCells::updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData*) {
    auto* node = static_cast<TreemapCellsNode*>(oldNode);
    if (!node || m_cellsDirty) {
        delete node;
        node = new TreemapCellsNode(window(), m_cells.cells());
        m_cellsDirty = false;
        m_hoverDirty = true;
    }
    if (m_hoverDirty) {
        node->setHovered(m_cells.cells(), m_hoveredIndex, m_hoverScale);
        m_hoverDirty = false;
    }
    return node;
}

void TreemapCells::hoverEnterEvent(QHoverEvent* event) {
    setHoveredIndex(cellAt(event->position().x(), event->position().y()));
}

void TreemapCells::hoverMoveEvent(QHoverEvent* event) {
    setHoveredIndex(cellAt(event->position().x(), event->position().y()));
}

void TreemapCells::hoverLeaveEvent(QHoverEvent*) {
    setHoveredIndex(-1);
}

void TreemapCells::mousePressEvent(QMouseEvent* event) {
    // Taken only over a cell, so a click on the empty rest reaches what lies below.
    event->setAccepted(cellAt(event->position().x(), event->position().y()) >= 0);
}

void TreemapCells::mouseReleaseEvent(QMouseEvent* event) {
    const int index = cellAt(event->position().x(), event->position().y());
    if (index >= 0)
        emit clicked(index);
}

void TreemapCells::mouseDoubleClickEvent(QMouseEvent* event) {
    const int index = cellAt(event->position().x(), event->position().y());
    event->setAccepted(index >= 0);
    if (index >= 0)
        emit doubleClicked(index);
}

} // namespace tessarine
