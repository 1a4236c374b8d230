#pragma once

#include "charts/TreemapCell.h"

namespace tessarine {

// The cell an arrow key moves to from the cell at index from: among the cells that lie wholly
// beyond its edge in the key's direction, the one whose centre is nearest, with the sideways
// offset counted twice, so Right moves along a row of cells before it jumps to another row.
// -1 when no cell lies that way or the key is no arrow.
int neighbouringCell(const QList<TreemapCell>& cells, int from, int key);

} // namespace tessarine
