#pragma once

#include <QQuickWindow>

#include <functional>

namespace tessarine {

// The milliseconds the window spends on its next frame after change: handling the change, then
// synchronising the scene (where items paint) and rendering it. Waiting for the render loop's
// next tick is left out, as it is no work.
double nextFrameCost(QQuickWindow& window, const std::function<void()>& change);

// The slowest frame while the pointer sweeps across area (window coordinates) in a wave from left
// to right, one move every 10 points.
struct SweepCost {
    double slowest = 0;
    int frames = 0;
};
SweepCost sweepFrameCost(QQuickWindow& window, const QRectF& area);

} // namespace tessarine
