#include "BuildHold.h"

#include <QThread>

#include <atomic>
#include <memory>

namespace tessarine::testing {

void holdBuildHalfWay(FolderTreeService& service) {
    auto seen = std::make_shared<std::atomic<int>>(0);
    auto held = std::make_shared<std::atomic<bool>>(false);
    service.setProgressObserver([&service, seen, held](const FolderTreeProgress& progress) {
        if (progress.phase != FolderTreeProgress::Phase::building || seen->fetch_add(1) < 1 ||
            2 * progress.processedItems < progress.totalItems || held->exchange(true))
            return;
        // Polled, as the flag is all the build itself watches; ten seconds at most, so a test
        // that never cancels fails instead of hanging.
        for (int waited = 0; !service.isCancelled() && waited < 1000; ++waited)
            QThread::msleep(10);
    });
}

} // namespace tessarine::testing
