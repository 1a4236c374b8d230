#include "charts/geometry/CatmullRomCurve.h"

#include <cmath>

namespace tessarine {

namespace {

// The distance between two points to the power alpha = 0.5.
double knotInterval(const QPointF& a, const QPointF& b) {
    return std::sqrt(std::hypot(b.x() - a.x(), b.y() - a.y()));
}

// The Bézier control point leaving `from` toward `to`, with `before` the point ahead of `from`
// (Yuksel, Schaefer and Keyser's conversion of the centripetal spline). d1 is the knot interval
// before `from`, d2 the one from `from` to `to`; a zero interval (an end point, or two equal
// points) leaves the control point on `from`.
QPointF controlPoint(const QPointF& before, const QPointF& from, const QPointF& to, double d1,
                     double d2) {
    if (d1 <= 0 || d2 <= 0)
        return from;
    const double a = 2 * d1 * d1 + 3 * d1 * d2 + d2 * d2;
    const double b = 3 * d1 * (d1 + d2);
    return (d1 * d1 * to - d2 * d2 * before + a * from) / b;
}

} // namespace

std::vector<CubicSegment> catmullRomCurve(std::span<const QPointF> points) {
    std::vector<CubicSegment> segments;
    if (points.size() < 2)
        return segments;
    segments.reserve(points.size() - 1);
    const std::size_t last = points.size() - 1;
    for (std::size_t i = 0; i < last; ++i) {
        const QPointF& p0 = points[i == 0 ? 0 : i - 1];
        const QPointF& p1 = points[i];
        const QPointF& p2 = points[i + 1];
        const QPointF& p3 = points[i + 1 == last ? last : i + 2];
        const double d1 = knotInterval(p0, p1);
        const double d2 = knotInterval(p1, p2);
        const double d3 = knotInterval(p2, p3);
        segments.push_back(
            {p1, controlPoint(p0, p1, p2, d1, d2), controlPoint(p3, p2, p1, d3, d2), p2});
    }
    return segments;
}

} // namespace tessarine
