#include "charts/TreemapCellBlend.h"

namespace tessarine {

namespace {

qreal between(qreal from, qreal to, qreal amount) {
    return from + (to - from) * amount;
}

QColor between(const QColor& from, const QColor& to, qreal amount) {
    return QColor::fromRgbF(static_cast<float>(between(from.redF(), to.redF(), amount)),
                            static_cast<float>(between(from.greenF(), to.greenF(), amount)),
                            static_cast<float>(between(from.blueF(), to.blueF(), amount)),
                            static_cast<float>(between(from.alphaF(), to.alphaF(), amount)));
}

QColor clear(QColor color) {
    color.setAlphaF(0);
    return color;
}

// A border that is not there has no colour of its own: it appears and goes in the other's.
CellBorder between(const CellBorder& from, const CellBorder& to, qreal amount) {
    const QColor start = from.width > 0 ? from.color : clear(to.color);
    const QColor end = to.width > 0 ? to.color : clear(from.color);
    return {between(start, end, amount), between(from.width, to.width, amount)};
}

} // namespace

CellLook hoverLook(const TreemapCell& cell, qreal amount) {
    return {between(cell.opacity, cell.hoveredOpacity, amount),
            between(cell.border, cell.hoveredBorder, amount)};
}

TreemapCell restyled(const TreemapCell& from, const TreemapCell& to, qreal amount) {
    TreemapCell cell = to;
    cell.fill = between(from.fill, to.fill, amount);
    cell.opacity = between(from.opacity, to.opacity, amount);
    cell.border = between(from.border, to.border, amount);
    cell.hoveredOpacity = between(from.hoveredOpacity, to.hoveredOpacity, amount);
    cell.hoveredBorder = between(from.hoveredBorder, to.hoveredBorder, amount);
    return cell;
}

} // namespace tessarine
