#include "FrameCost.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QQuickWindow>
#include <QTimer>

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

} // namespace tessarine
