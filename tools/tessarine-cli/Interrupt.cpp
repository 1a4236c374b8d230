#include "Interrupt.h"

#include <atomic>

namespace tessarine::cli {

namespace {

// Only a lock-free atomic may be touched from a signal handler.
std::atomic<bool> interruptReceived{false};
static_assert(std::atomic<bool>::is_always_lock_free);

void onInterrupt(int) {
    interruptReceived.store(true);
}

} // namespace

InterruptCatcher::InterruptCatcher() {
    interruptReceived.store(false);
    struct sigaction action = {};
    action.sa_handler = onInterrupt;
    sigemptyset(&action.sa_mask);
    // Restarting keeps the worker's file system calls from failing with EINTR half-way.
    action.sa_flags = SA_RESETHAND | SA_RESTART;
    sigaction(SIGINT, &action, &m_previous);
}

InterruptCatcher::~InterruptCatcher() {
    sigaction(SIGINT, &m_previous, nullptr);
}

bool InterruptCatcher::interrupted() const {
    return interruptReceived.load();
}

} // namespace tessarine::cli
