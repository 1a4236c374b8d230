#include "charts/TreemapCellsNode.h"

#include <QQuickWindow>
#include <QSGRectangleNode>
#include <QSGTransformNode>

#include <algorithm>

namespace tessarine {

namespace {

CellNodes makeCellNodes(QQuickWindow* window, QSGNode* parent, bool withBorder) {
    CellNodes nodes;
    nodes.fill = window->createRectangleNode();
    parent->appendChildNode(nodes.fill);
    if (withBorder) {
        for (QSGRectangleNode*& edge : nodes.edges) {
            edge = window->createRectangleNode();
            parent->appendChildNode(edge);
        }
    }
    return nodes;
}

QColor faded(QColor color, qreal opacity) {
    color.setAlphaF(static_cast<float>(color.alphaF() * opacity));
    return color;
}

// Draws rect filled and bordered; an empty rect hides the cell.
void paint(CellNodes& nodes, const QRectF& rect, const QColor& fill, qreal opacity,
           const CellBorder& border) {
    nodes.fill->setRect(rect);
    nodes.fill->setColor(faded(fill, opacity));
    if (!nodes.edges[0])
        return;
    // Inside the edge, never wider than half the cell, so the edges never cross.
    const qreal w = std::clamp(border.width, 0.0, std::min(rect.width(), rect.height()) / 2);
    const std::array<QRectF, 4> edges{
        QRectF(rect.x(), rect.y(), rect.width(), w),
        QRectF(rect.x(), rect.bottom() - w, rect.width(), w),
        QRectF(rect.x(), rect.y() + w, w, rect.height() - 2 * w),
        QRectF(rect.right() - w, rect.y() + w, w, rect.height() - 2 * w),
    };
    for (std::size_t i = 0; i < edges.size(); ++i) {
        nodes.edges[i]->setRect(w > 0 ? edges[i] : QRectF());
        nodes.edges[i]->setColor(border.color);
    }
}

void paintNormal(CellNodes& nodes, const TreemapCell& cell) {
    paint(nodes, cell.rect, cell.fill, cell.opacity, cell.border);
}

} // namespace

TreemapCellsNode::TreemapCellsNode(QQuickWindow* window, const QList<TreemapCell>& cells) {
    m_cells.reserve(cells.size());
    for (const TreemapCell& cell : cells) {
        m_cells.push_back(makeCellNodes(window, this, cell.border.width > 0));
        paintNormal(m_cells.back(), cell);
    }
    m_hoverLayer = new QSGTransformNode;
    appendChildNode(m_hoverLayer);
    m_hovered = makeCellNodes(window, m_hoverLayer, true);
    paint(m_hovered, QRectF(), QColor(), 0, {});
}

void TreemapCellsNode::setHovered(const QList<TreemapCell>& cells, int index, qreal scale) {
    if (m_hoveredIndex >= 0 && m_hoveredIndex < cells.size())
        paintNormal(m_cells[m_hoveredIndex], cells[m_hoveredIndex]);
    m_hoveredIndex = index;
    if (index < 0 || index >= cells.size()) {
        paint(m_hovered, QRectF(), QColor(), 0, {});
        return;
    }
    // The cell leaves its place for the layer on top, so its two looks are never blended.
    const TreemapCell& cell = cells[index];
    paint(m_cells[index], QRectF(), QColor(), 0, {});
    paint(m_hovered, cell.rect, cell.fill, cell.hoveredOpacity, cell.hoveredBorder);
    QMatrix4x4 matrix;
    matrix.translate(cell.rect.center().x(), cell.rect.center().y());
    matrix.scale(static_cast<float>(scale));
    matrix.translate(-cell.rect.center().x(), -cell.rect.center().y());
    m_hoverLayer->setMatrix(matrix);
}

} // namespace tessarine
