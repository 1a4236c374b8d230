#include "charts/TreemapNavigation.h"

#include <cmath>
#include <limits>

namespace tessarine {

namespace {

QPointF directionOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

// Whether rect lies wholly beyond from's edge on the side of direction (touching counts), so that
// a cell nested inside another is never "ahead" of it.
bool liesAhead(const QRectF& from, const QRectF& rect, QPointF direction) {
    constexpr qreal slack = 0.5;
    if (direction.x() > 0)
        return rect.left() >= from.right() - slack;
    if (direction.x() < 0)
        return rect.right() <= from.left() + slack;
    if (direction.y() > 0)
        return rect.top() >= from.bottom() - slack;
    return rect.bottom() <= from.top() + slack;
}

} // namespace

int neighbouringCell(const QList<TreemapCell>& cells, int from, int key) {
    const QPointF direction = directionOf(key);
    if (direction.isNull() || from < 0 || from >= cells.size())
        return -1;
    const QRectF& origin = cells[from].rect;
    int nearest = -1;
    qreal nearestScore = std::numeric_limits<qreal>::max();
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (!liesAhead(origin, cells[i].rect, direction))
            continue;
        const QPointF offset = cells[i].rect.center() - origin.center();
        const qreal along = QPointF::dotProduct(offset, direction);
        const qreal across = std::abs(offset.x() * direction.y() - offset.y() * direction.x());
        const qreal score = along + 2 * across;
        if (score < nearestScore) {
            nearestScore = score;
            nearest = static_cast<int>(i);
        }
    }
    return nearest;
}

} // namespace tessarine
