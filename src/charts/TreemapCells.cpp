#include "charts/TreemapCells.h"

#include "charts/TreemapCellsAccessible.h"
#include "charts/TreemapLabelPainter.h"
#include "charts/TreemapNavigation.h"
#include "design/ColorScheme.h"
#include "design/Palette.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace tessarine {

namespace {

QColor faded(QColor color, qreal opacity) {
    color.setAlphaF(static_cast<float>(color.alphaF() * opacity));
    return color;
}

// A cell too small to show its corners is filled as a plain rectangle, which is far cheaper.
bool showsCorners(const QRectF& rect, qreal radius) {
    return radius > 0 && rect.width() > 2 * radius && rect.height() > 2 * radius;
}

// Most cells of a large level are a few pixels wide: those are filled as plain rectangles, edges
// included, which the raster engine does several times faster than stroking them.
void paintSquareCell(QPainter& painter, const QRectF& rect, const QColor& fill, qreal width,
                     const QColor& borderColor) {
    painter.fillRect(rect, fill);
    if (width <= 0)
        return;
    painter.fillRect(QRectF(rect.x(), rect.y(), rect.width(), width), borderColor);
    painter.fillRect(QRectF(rect.x(), rect.bottom() - width, rect.width(), width), borderColor);
    const qreal side = rect.height() - 2 * width;
    painter.fillRect(QRectF(rect.x(), rect.y() + width, width, side), borderColor);
    painter.fillRect(QRectF(rect.right() - width, rect.y() + width, width, side), borderColor);
}

void paintCell(QPainter& painter, const QRectF& rect, qreal radius, const QColor& fill,
               qreal opacity, const CellBorder& border) {
    if (rect.isEmpty())
        return;
    // The border lies inside the shape, never wider than half the cell.
    const qreal width = std::min({border.width, rect.width() / 2, rect.height() / 2});
    if (!showsCorners(rect, radius)) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        paintSquareCell(painter, rect, faded(fill, opacity), width, border.color);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(faded(fill, opacity));
    painter.drawRoundedRect(rect, radius, radius);
    if (width <= 0)
        return;
    // A stroke is centred on its line, so the line runs half the width in from the edge.
    const qreal half = width / 2;
    painter.setPen(QPen(border.color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), radius - half, radius - half);
}

// The cell with its label, in its hovered style or not.
void paintCellWithLabel(QPainter& painter, const TreemapCell& cell, bool hovered) {
    paintCell(painter, cell.rect, cell.radius, cell.fill,
              hovered ? cell.hoveredOpacity : cell.opacity,
              hovered ? cell.hoveredBorder : cell.border);
    paintTreemapLabel(painter, cell.rect, cell.label);
}

// The ring of the design's buttons, drawn inside the cell so that neighbours do not cover it, with
// a white line inside it so that it shows on a cell of the accent's own colour too.
void paintFocusRing(QPainter& painter, const TreemapCell& cell, QColor accent) {
    accent.setAlphaF(0.85f);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(Qt::NoBrush);
    const auto stroke = [&](const QColor& color, qreal inset, qreal width) {
        const qreal middle = inset + width / 2;
        const qreal radius = std::max(cell.radius - middle, 0.0);
        painter.setPen(QPen(color, width));
        painter.drawRoundedRect(cell.rect.adjusted(middle, middle, -middle, -middle), radius,
                                radius);
    };
    stroke(accent, 0, 3);
    stroke(Qt::white, 3, 1.5);
}

bool sameLayout(const QList<TreemapCell>& some, const QList<TreemapCell>& others) {
    return std::equal(
        some.begin(), some.end(), others.begin(), others.end(),
        [](const TreemapCell& one, const TreemapCell& other) { return one.rect == other.rect; });
}

} // namespace

TreemapCells::TreemapCells(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    setActiveFocusOnTab(true);
    TreemapCellsAccessible::install();
    // paint runs on the render thread: the colour scheme is read here, on the GUI thread.
    const auto takeAccent = [this] {
        m_accent = paletteColor(u"accent");
        update();
    };
    takeAccent();
    connect(&ColorScheme::instance(), &ColorScheme::darkChanged, this, takeAccent);
}

void TreemapCells::setCells(const TreemapCellList& cells) {
    if (cells == m_cells)
        return;
    const bool relaidOut = !sameLayout(cells.cells(), m_cells.cells());
    m_cells = cells;
    // A new style alone (another selection) leaves every cell where it was, so the keys stay on
    // their cell; a new layout (a drill-down) starts them again from its first cell. The pointer
    // hovers whatever cell now lies under it.
    if (showsFocusRing())
        setHoveredIndex(relaidOut ? firstCell() : m_hoveredIndex);
    else
        setHoveredIndex(cellAt(m_pointer.x(), m_pointer.y()));
    repaintAll();
    emit cellsChanged();
}

void TreemapCells::setHoverScale(qreal scale) {
    if (qFuzzyCompare(scale, m_hoverScale))
        return;
    updateHoveredArea();
    m_hoverScale = scale;
    updateHoveredArea();
    emit hoverScaleChanged();
}

void TreemapCells::setCornerRadius(qreal radius) {
    if (qFuzzyCompare(radius, m_cornerRadius))
        return;
    m_cornerRadius = radius;
    repaintAll();
    emit cornerRadiusChanged();
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

void TreemapCells::repaintAll() {
    m_repaintsAll = true;
    update();
}

void TreemapCells::updateHoveredArea() {
    // An empty area would repaint the whole item.
    if (m_hoveredIndex < 0 || m_hoveredIndex >= m_cells.count())
        return;
    if (m_repaintsAll) {
        update();
        return;
    }
    const QRectF rect = m_cells.cells()[m_hoveredIndex].rect;
    const qreal scale = std::max(m_hoverScale, 1.0);
    const QSizeF size = rect.size() * scale;
    // One more pixel for antialiasing.
    update(QRectF(rect.center() - QPointF(size.width(), size.height()) / 2, size)
               .toAlignedRect()
               .adjusted(-1, -1, 1, 1));
}

void TreemapCells::setHoveredIndex(int index) {
    if (index == m_hoveredIndex)
        return;
    updateHoveredArea();
    m_hoveredIndex = index;
    updateHoveredArea();
    emit hoveredIndexChanged();
}

bool TreemapCells::movesWithHovered(qsizetype index) const {
    const QList<TreemapCell>& cells = m_cells.cells();
    return m_hoveredIndex >= 0 && m_hoveredIndex < cells.size() && index > m_hoveredIndex &&
           cells[m_hoveredIndex].rect.contains(cells[index].rect);
}

void TreemapCells::paint(QPainter* painter) {
    m_repaintsAll = false;
    const QList<TreemapCell>& cells = m_cells.cells();
    // A hover change repaints two small areas; the cells outside them are left as they are.
    const QRectF area =
        painter->hasClipping() ? painter->clipBoundingRect() : QRectF(0, 0, width(), height());
    for (qsizetype i = 0; i < cells.size(); ++i) {
        const TreemapCell& cell = cells[i];
        if (i != m_hoveredIndex && cell.rect.intersects(area) && !movesWithHovered(i))
            paintCellWithLabel(*painter, cell, false);
    }
    if (m_hoveredIndex >= 0 && m_hoveredIndex < cells.size())
        paintHovered(*painter);
    cutCorners(*painter);
}

void TreemapCells::paintHovered(QPainter& painter) const {
    const QList<TreemapCell>& cells = m_cells.cells();
    const TreemapCell& hovered = cells[m_hoveredIndex];
    painter.save();
    painter.translate(hovered.rect.center());
    painter.scale(m_hoverScale, m_hoverScale);
    painter.translate(-hovered.rect.center());
    paintCellWithLabel(painter, hovered, true);
    for (qsizetype i = m_hoveredIndex + 1; i < cells.size(); ++i) {
        if (movesWithHovered(i))
            paintCellWithLabel(painter, cells[i], false);
    }
    if (showsFocusRing())
        paintFocusRing(painter, hovered, m_accent);
    painter.restore();
}

void TreemapCells::cutCorners(QPainter& painter) const {
    if (m_cornerRadius <= 0)
        return;
    // Erased after painting rather than clipped before: a clip path has no antialiasing.
    QPainterPath corners;
    corners.addRect(boundingRect());
    QPainterPath rounded;
    rounded.addRoundedRect(boundingRect(), m_cornerRadius, m_cornerRadius);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(corners.subtracted(rounded), Qt::black);
    painter.restore();
}

void TreemapCells::hoverEnterEvent(QHoverEvent* event) {
    hoverAt(event->position());
}

void TreemapCells::hoverMoveEvent(QHoverEvent* event) {
    // The scene repeats a hover on every frame while the pointer rests; only a move of the
    // pointer takes the hovered cell back from the keys.
    if (event->position() != m_pointer)
        hoverAt(event->position());
}

void TreemapCells::hoverLeaveEvent(QHoverEvent*) {
    m_pointer = {-1, -1};
    setHoveredIndex(-1);
}

void TreemapCells::hoverAt(QPointF position) {
    m_pointer = position;
    setHoveredIndex(cellAt(position.x(), position.y()));
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

bool TreemapCells::showsFocusRing() const {
    return m_keyboardFocus && hasActiveFocus();
}

void TreemapCells::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down) {
        const int next = m_hoveredIndex < 0
                             ? firstCell()
                             : neighbouringCell(m_cells.cells(), m_hoveredIndex, key);
        if (next >= 0)
            setHoveredIndex(next);
    } else if (m_hoveredIndex >= 0 && key == Qt::Key_Space) {
        emit clicked(m_hoveredIndex);
    } else if (m_hoveredIndex >= 0 && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        const int index = m_hoveredIndex;
        emit clicked(index);
        emit doubleClicked(index);
    } else {
        event->ignore();
        return;
    }
    m_keyboardFocus = true;
    updateHoveredArea();
    event->accept();
}

void TreemapCells::focusInEvent(QFocusEvent* event) {
    QQuickPaintedItem::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    m_keyboardFocus = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    if (m_keyboardFocus && m_hoveredIndex < 0)
        setHoveredIndex(firstCell());
    updateHoveredArea();
}

void TreemapCells::focusOutEvent(QFocusEvent* event) {
    QQuickPaintedItem::focusOutEvent(event);
    m_keyboardFocus = false;
    updateHoveredArea();
}

} // namespace tessarine
