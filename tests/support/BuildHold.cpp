#include "BuildHold.h"

#include <QThread>

#include <atomic>
#include <memory>

namespace tessarine::testing {

void holdBuildInPhase(FolderTreeService& service, FolderTreeProgress::Phase phase) {
    auto seen = std::make_shared<std::atomic<int>>(0);
    auto held = std::make_shared<std::atomic<bool>>(false);
    service.setProgressObserver([&service, phase, seen, held](const FolderTreeProgress& progress) {
        // Building is held half-way, where it looks like a build under way.
        const bool halfWay = phase != FolderTreeProgress::Phase::building ||
                             2 * progress.processedItems >= progress.totalItems;
        if (progress.phase != phase || seen->fetch_add(1) < 1 || !halfWay || held->exchange(true))
            return;
        // Polled, as the flag is all the build itself watches; ten seconds at most, so a test
        // that never cancels fails instead of hanging.
        for (int waited = 0; !service.isCancelled() && waited < 1000; ++waited)
            QThread::msleep(10);
    });
}

} // namespace tessarine::testing
