#include "charts/TreemapCellStyle.h"

#include "design/Palette.h"
#include "model/Format.h"

#include <algorithm>

namespace tessarine {

namespace {

// rect shrunk by the gap on every side about its centre, never below minimumSide.
QRectF inset(const QRectF& rect, double gap, double minimumSide) {
    const double width = std::max(rect.width() - 2 * gap, minimumSide);
    const double height = std::max(rect.height() - 2 * gap, minimumSide);
    return QRectF(rect.center().x() - width / 2, rect.center().y() - height / 2, width, height);
}

// A folder cell's caption: only in cells large enough to read it, with the symbol and the size
// where there is room for them, in type that shrinks with the cell.
TreemapLabel folderLabel(const NestedTreemapCell& cell) {
    const QRectF& rect = cell.item.rect;
    if (rect.width() <= 40 || rect.height() <= 25)
        return {};
    const bool showsSize = rect.width() > 70 && rect.height() > 40;
    return {cell.item.folder->name,
            showsSize ? format::byteCount(cell.item.folder->totalSize) : QString(),
            !cell.item.isFiles && rect.width() > 60, std::clamp(rect.width() / 12, 8.0, 11.0),
            std::clamp(rect.width() / 15, 7.0, 9.0),
            // The padding of a cell that shows its contents; the cell's rectangle already leaves
            // the 1-point gap to its neighbours.
            cell.nests ? 3.0 : 0.0};
}

} // namespace

QList<TreemapCell> categoryTreemapCells(const std::vector<TreeMapRect>& rects, qint64 totalSize,
                                        std::optional<FileCategory> selected) {
    QList<TreemapCell> cells;
    cells.reserve(static_cast<qsizetype>(rects.size()));
    for (const TreeMapRect& rect : rects) {
        const CellBorder border =
            selected == rect.stat.category ? CellBorder{Qt::white, 3} : CellBorder{};
        cells.append({inset(rect.rect, 1, 1),
                      4,
                      paletteColor(colorName(rect.stat.category)),
                      0.7,
                      border,
                      0.9,
                      border,
                      {},
                      {rawValue(rect.stat.category) + QStringLiteral(" category"),
                       rect.stat.totalSize, totalSize}});
    }
    return cells;
}

QList<TreemapCell> folderTreemapCells(const NestedTreemap& treemap, qint64 shownSize) {
    const CellBorder outline{QColor::fromRgbF(0, 0, 0, 0.3f), 1};
    const CellBorder hoveredOutline{Qt::white, 2};
    QList<TreemapCell> cells;
    cells.reserve(static_cast<qsizetype>(treemap.cells.size()));
    for (const NestedTreemapCell& cell : treemap.cells) {
        const QColor fill = paletteColor(rawValue(folderColorAt(cell.item.colorIndex)));
        // Corners tighten with each nesting so inner cells do not look swollen.
        const qreal radius = std::max(6.0 - 2.0 * static_cast<double>(cell.level), 2.0);
        cells.append({inset(cell.item.rect, 1, 0),
                      radius,
                      fill,
                      cell.nests ? 0.85 : 0.75,
                      outline,
                      cell.nests ? 0.85 : 0.9,
                      hoveredOutline,
                      folderLabel(cell),
                      {cell.item.folder->name, cell.item.folder->totalSize, shownSize}});
    }
    return cells;
}

} // namespace tessarine
