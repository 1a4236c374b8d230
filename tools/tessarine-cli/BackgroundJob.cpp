#include "BackgroundJob.h"

#include "Interrupt.h"
#include "ProgressLine.h"

#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <memory>

namespace tessarine::cli {

namespace {

constexpr int pollMilliseconds = 125;

} // namespace

bool runInBackground(const BackgroundJob& job) {
    const InterruptCatcher interrupt;
    ProgressLine line;
    QEventLoop loop;
    const std::unique_ptr<QThread> worker(QThread::create(job.work));
    QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);

    QTimer poll;
    poll.setInterval(pollMilliseconds);
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        // Asked again on every tick: a cancel that lands before the work has really started is
        // forgotten by the scanner.
        if (interrupt.interrupted())
            job.cancel();
        if (line.isShown())
            line.show(job.describe());
    });

    poll.start();
    worker->start();
    loop.exec();
    worker->wait();
    line.clear();
    return interrupt.interrupted();
}

} // namespace tessarine::cli
