#include "model/WorkerThread.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace tessarine {

namespace {

std::atomic<int> running{0};

} // namespace

void startWorkerThread(std::function<void()> work) {
    running.fetch_add(1);
    std::thread([work = std::move(work)]() mutable {
        work();
        // What the work captured goes before it counts as ended: that may be the last owner of
        // a large result or of a service.
        work = nullptr;
        running.fetch_sub(1);
    }).detach();
}

int runningWorkerThreads() {
    return running.load();
}

int leaveProcess(int status) {
    if (runningWorkerThreads() == 0)
        return status;
    std::fflush(nullptr);
    std::_Exit(status);
}

} // namespace tessarine
