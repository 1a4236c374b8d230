#include "BackgroundJob.h"

#include "Interrupt.h"
#include "ProgressLine.h"

#include "model/WorkerReplies.h"
#include "model/WorkerThread.h"

#include <QEventLoop>
#include <QTimer>

namespace tessarine::cli {

namespace {

constexpr int pollMilliseconds = 125;

// Long enough for a cancelled walk to wind down and report its cancellation as usual, short
// enough that Ctrl-C still feels immediate when it cannot.
constexpr int abandonMilliseconds = 500;

} // namespace

bool runInBackground(const BackgroundJob& job) {
    const InterruptCatcher interrupt;
    ProgressLine line;
    QEventLoop loop;
    const WorkerReplies replies(&loop);

    QTimer abandon;
    abandon.setSingleShot(true);
    abandon.setInterval(abandonMilliseconds);
    QObject::connect(&abandon, &QTimer::timeout, &loop, &QEventLoop::quit);

    QTimer poll;
    poll.setInterval(pollMilliseconds);
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (interrupt.interrupted() && !abandon.isActive()) {
            job.cancel();
            abandon.start();
        }
        if (line.isShown())
            line.show(job.describe());
    });

    poll.start();
    startWorkerThread([work = job.work, done = replies.sender(), &loop] {
        work();
        done.post([&loop] { loop.quit(); });
    });
    loop.exec();
    line.clear();
    return interrupt.interrupted();
}

} // namespace tessarine::cli
