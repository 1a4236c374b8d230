#pragma once

#include "screens/common/Figure.h"

#include <vector>

namespace tessarine {

struct ResultTotals {
    qint64 totalSize = 0;
    qint64 fileCount = 0;
    qint64 folderCount = 0;
    qint64 maxDepth = 0;
};

// The dashboard's four summary cards: "Total Size", "Files", "Folders", "Max Depth".
std::vector<Figure> summaryFigures(const ResultTotals& totals);

} // namespace tessarine
