#pragma once

#include "charts/TreemapCell.h"

#include <QPainter>

namespace tessarine {

// Paints label along the top of cell: symbol, title cut short to fit, then the figure when the
// room left takes it whole. Nothing is drawn outside cell.
void paintTreemapLabel(QPainter& painter, const QRectF& cell, const TreemapLabel& label);

} // namespace tessarine
