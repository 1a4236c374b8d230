#pragma once

#include "charts/TreemapCell.h"

#include <QSGNode>

#include <array>
#include <vector>

class QQuickWindow;
class QSGRectangleNode;
class QSGTransformNode;

namespace tessarine {

// The scene-graph nodes of one drawn cell: a fill and, when it has a border, four edges over it.
// Plain rectangle nodes, because the software renderer draws those and no custom geometry.
struct CellNodes {
    QSGRectangleNode* fill = nullptr;
    std::array<QSGRectangleNode*, 4> edges{};
};

// The nodes of a TreemapCells item: one group per cell in order, then a layer on top holding the
// hovered cell, scaled about its centre.
class TreemapCellsNode : public QSGNode {
public:
    TreemapCellsNode(QQuickWindow* window, const QList<TreemapCell>& cells);

    // Shows cell index of cells hovered (or none for -1), restoring the one hovered before.
    void setHovered(const QList<TreemapCell>& cells, int index, qreal scale);

private:
    std::vector<CellNodes> m_cells;
    QSGTransformNode* m_hoverLayer = nullptr;
    CellNodes m_hovered;
    int m_hoveredIndex = -1;
};

} // namespace tessarine
