#pragma once

#include "charts/TreemapCell.h"

namespace tessarine {

// How a cell looks part of the way through a change, so that TreemapCells can fade between two
// looks without a scene-graph node per cell: amount 0 is the first look, 1 the second.

// The cell between its normal look and its hovered one: the hovered opacity and border (the
// growth about its centre is the painter's).
struct CellLook {
    qreal opacity = 1;
    CellBorder border;
};
CellLook hoverLook(const TreemapCell& cell, qreal amount);

// The cell between an earlier style of the same place (another selection) and its new one.
TreemapCell restyled(const TreemapCell& from, const TreemapCell& to, qreal amount);

} // namespace tessarine
