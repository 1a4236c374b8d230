#include "screens/dashboard/SummaryFigures.h"

#include "model/Format.h"

namespace tessarine {

std::vector<Figure> summaryFigures(const ResultTotals& totals) {
    return {
        {QStringLiteral("Total Size"),
         format::byteCount(totals.totalSize),
         {},
         QStringLiteral("internaldrive.fill"),
         QStringLiteral("blue")},
        {QStringLiteral("Files"),
         format::count(totals.fileCount),
         {},
         QStringLiteral("doc.fill"),
         QStringLiteral("green")},
        {QStringLiteral("Folders"),
         format::count(totals.folderCount),
         {},
         QStringLiteral("folder.fill"),
         QStringLiteral("orange")},
        // Depths read as plain integers, like path lengths, never with group separators.
        {QStringLiteral("Max Depth"), QString::number(totals.maxDepth),
         QStringLiteral("levels deep"), QStringLiteral("arrow.down.right.circle.fill"),
         QStringLiteral("purple")},
    };
}

} // namespace tessarine
