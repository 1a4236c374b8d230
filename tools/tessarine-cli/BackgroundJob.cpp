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
        // Cancelling is idempotent, so there is no need to remember having done it.
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
