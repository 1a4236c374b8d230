#pragma once

#include <QPointF>

#include <span>
#include <vector>

namespace tessarine {

// One cubic Bézier piece of a curve, as a path's cubicTo takes it.
struct CubicSegment {
    QPointF start;
    QPointF control1;
    QPointF control2;
    QPointF end;
};

// A smooth curve through points in order: centripetal Catmull-Rom (alpha 0.5), which neither
// loops nor overshoots into cusps when neighbouring points are unevenly spaced (scans taken a day
// and then a month apart), as Bézier pieces, one per pair of neighbours. The end points are
// their own outer neighbours. Fewer than two points give no pieces.
std::vector<CubicSegment> catmullRomCurve(std::span<const QPointF> points);

} // namespace tessarine
