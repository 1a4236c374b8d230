#include "frames/FrameCost.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace tessarine {

double nextFrameCost(QQuickWindow& window, const std::function<void()>& change) {
    QElapsedTimer clock;
    qint64 frameStart = 0;
    qint64 frameEnd = 0;
    QEventLoop loop;
    const auto started = QObject::connect(
        &window, &QQuickWindow::beforeSynchronizing, &window,
        [&] { frameStart = clock.nsecsElapsed(); }, Qt::DirectConnection);
    const auto swapped = QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, [&] {
        frameEnd = clock.nsecsElapsed();
        loop.quit();
    });
    QTimer::singleShot(5'000, &loop, &QEventLoop::quit);
    clock.start();
    change();
    const qint64 handled = clock.nsecsElapsed();
    window.update();
    loop.exec();
    QObject::disconnect(started);
    QObject::disconnect(swapped);
    return static_cast<double>(handled + frameEnd - frameStart) / 1e6;
}

SweepCost sweepFrameCost(QQuickWindow& window, const QRectF& area) {
    SweepCost cost;
    for (qreal x = area.left() + 5; x < area.right(); x += 10) {
        const QPointF point(x, area.center().y() +
                                   area.height() * 0.42 * std::sin((x - area.left()) / 80.0));
        const double ms = nextFrameCost(window, [&] {
            QMouseEvent move(QEvent::MouseMove, point, window.mapToGlobal(point), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QGuiApplication::sendEvent(&window, &move);
        });
        cost.slowest = std::max(cost.slowest, ms);
        ++cost.frames;
    }
    return cost;
}

} // namespace tessarine
