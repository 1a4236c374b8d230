#pragma once

#include <functional>

class QQuickWindow;

namespace tessarine {

// The milliseconds the window spends on its next frame after change: handling the change, then
// synchronising the scene (where painted items paint) and rendering it. Waiting for the render
// loop's next tick is left out, as it is no work.
double nextFrameCost(QQuickWindow& window, const std::function<void()>& change);

} // namespace tessarine
