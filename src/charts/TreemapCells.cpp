#include "charts/TreemapCells.h"

#include "charts/TreemapCellBlend.h"
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

// The cell with its label, amount of the way into its hovered style.
void paintCellWithLabel(QPainter& painter, const TreemapCell& cell, qreal amount) {
    const CellLook look = hoverLook(cell, amount);
    paintCell(painter, cell.rect, cell.radius, cell.fill, look.opacity, look.border);
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
    m_hoverTransition.setStartValue(0.0);
    m_hoverTransition.setEndValue(1.0);
    m_hoverTransition.setEasingCurve(QEasingCurve::OutQuad);
    connect(&m_hoverTransition, &QVariantAnimation::valueChanged, this, &TreemapCells::hoverStep);
    // The left cell has shrunk back into the others.
    connect(&m_hoverTransition, &QAbstractAnimation::finished, this,
            [this] { m_leavingIndex = -1; });
    m_restyle.setStartValue(0.0);
    m_restyle.setEndValue(1.0);
    m_restyle.setDuration(200);
    m_restyle.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_restyle, &QVariantAnimation::valueChanged, this, &TreemapCells::restyleStep);
}

void TreemapCells::setCells(const TreemapCellList& cells) {
    if (cells == m_cells)
        return;
    const bool relaidOut = !sameLayout(cells.cells(), m_cells.cells());
    // Another style of the same cells fades in from the style of the moment, over the cells
    // whose style changed.
    QList<TreemapCell> previous;
    m_restyledArea = {};
    for (qsizetype i = 0; !relaidOut && i < cells.count(); ++i) {
        previous.append(styledCell(i));
        if (!(previous.last() == cells.cells()[i]))
            m_restyledArea |= grown(previous.last().rect);
    }
    m_restyle.stop();
    m_previousStyle = previous;
    m_cells = cells;
    // A new style alone (another selection) leaves every cell where it was, so the keys stay on
    // their cell; a new layout (a drill-down) starts them again from its first cell. The pointer
    // hovers whatever cell now lies under it.
    if (showsFocusRing())
        setHoveredIndex(relaidOut ? firstCell() : m_hoveredIndex);
    else
        setHoveredIndex(cellAt(m_pointer.x(), m_pointer.y()));
    if (relaidOut) {
        // The cell the pointer left belonged to the old layout.
        m_leavingIndex = -1;
        repaintAll();
    } else {
        m_restyleProgress = 0;
        m_restyle.start();
    }
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

void TreemapCells::setHoverDuration(int duration) {
    if (duration == m_hoverDuration)
        return;
    m_hoverDuration = duration;
    emit hoverDurationChanged();
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

void TreemapCells::updateArea(const QRectF& area) {
    // An empty area would repaint the whole item.
    if (area.isEmpty())
        return;
    if (m_repaintsAll) {
        update();
        return;
    }
    // One more pixel for antialiasing.
    update(area.toAlignedRect().adjusted(-1, -1, 1, 1));
}

QRectF TreemapCells::grown(const QRectF& rect) const {
    const QSizeF size = rect.size() * std::max(m_hoverScale, 1.0);
    return QRectF(rect.center() - QPointF(size.width(), size.height()) / 2, size);
}

void TreemapCells::updateCellArea(int index) {
    if (index >= 0 && index < m_cells.count())
        updateArea(grown(m_cells.cells()[index].rect));
}

void TreemapCells::setHoveredIndex(int index) {
    if (index == m_hoveredIndex)
        return;
    // A cell still shrinking back from an earlier hover is done at once.
    updateCellArea(m_leavingIndex);
    const int left = m_hoveredIndex;
    m_leavingFrom = hoverAmount(left);
    m_hoveredIndex = index;
    m_hoverTransition.stop();
    if (m_hoverDuration > 0) {
        m_leavingIndex = left;
        m_hoverProgress = 0;
        m_hoverTransition.setDuration(m_hoverDuration);
        m_hoverTransition.start();
    } else {
        m_leavingIndex = -1;
        m_hoverProgress = 1;
    }
    updateCellArea(left);
    updateHoveredArea();
    emit hoveredIndexChanged();
}

void TreemapCells::hoverStep(const QVariant& progress) {
    m_hoverProgress = progress.toReal();
    updateCellArea(m_leavingIndex);
    updateHoveredArea();
}

void TreemapCells::restyleStep(const QVariant& progress) {
    m_restyleProgress = progress.toReal();
    updateArea(m_restyledArea);
    if (m_restyleProgress >= 1)
        m_previousStyle.clear();
}

qreal TreemapCells::hoverAmount(int index) const {
    if (index < 0)
        return 0;
    if (index == m_hoveredIndex)
        return m_hoverProgress;
    if (index == m_leavingIndex)
        return m_leavingFrom * (1 - m_hoverProgress);
    return 0;
}

TreemapCell TreemapCells::styledCell(qsizetype index) const {
    const TreemapCell& cell = m_cells.cells()[index];
    if (m_previousStyle.size() != m_cells.cells().size())
        return cell;
    return restyled(m_previousStyle[index], cell, m_restyleProgress);
}

bool TreemapCells::isRaised(qsizetype index) const {
    return index == m_hoveredIndex || index == m_leavingIndex || movesWith(m_hoveredIndex, index) ||
           movesWith(m_leavingIndex, index);
}

bool TreemapCells::movesWith(int raised, qsizetype index) const {
    const QList<TreemapCell>& cells = m_cells.cells();
    return raised >= 0 && raised < cells.size() && index > raised &&
           cells[raised].rect.contains(cells[index].rect);
}

void TreemapCells::paint(QPainter* painter) {
    m_repaintsAll = false;
    const QList<TreemapCell>& cells = m_cells.cells();
    // A hover change repaints two small areas; the cells outside them are left as they are.
    const QRectF area =
        painter->hasClipping() ? painter->clipBoundingRect() : QRectF(0, 0, width(), height());
    // Most repaints change no style: the cells are painted as they are, without a copy each.
    const bool restyling = m_previousStyle.size() == cells.size();
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (!cells[i].rect.intersects(area) || isRaised(i))
            continue;
        if (restyling)
            paintCellWithLabel(*painter, styledCell(i), 0);
        else
            paintCellWithLabel(*painter, cells[i], 0);
    }
    // The cell the pointer left under the one it went to, which may lie inside it.
    for (const int raised : {m_leavingIndex, m_hoveredIndex}) {
        if (raised >= 0 && raised < cells.size())
            paintRaised(*painter, raised);
    }
    cutCorners(*painter);
}

void TreemapCells::paintRaised(QPainter& painter, int index) const {
    const QList<TreemapCell>& cells = m_cells.cells();
    const TreemapCell raised = styledCell(index);
    const qreal amount = hoverAmount(index);
    const qreal scale = 1 + (m_hoverScale - 1) * amount;
    painter.save();
    painter.translate(raised.rect.center());
    painter.scale(scale, scale);
    painter.translate(-raised.rect.center());
    paintCellWithLabel(painter, raised, amount);
    for (qsizetype i = index + 1; i < cells.size(); ++i) {
        if (movesWith(index, i) && !(index == m_leavingIndex && i == m_hoveredIndex))
            paintCellWithLabel(painter, styledCell(i), 0);
    }
    if (index == m_hoveredIndex && showsFocusRing())
        paintFocusRing(painter, raised, m_accent);
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
