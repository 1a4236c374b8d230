#pragma once

#include <atomic>
#include <memory>

namespace tessarine {

// The cancellation of one task (a scan, a folder tree build), made by whoever starts the task and
// handed to it. It exists before the task's worker runs, so a cancel that comes before the worker
// has even started still takes; a flag the worker resets when it starts would forget it. Copies
// share one flag: the caller keeps a copy to cancel with, the worker polls another.
class CancelToken {
public:
    CancelToken()
        : m_flag(std::make_shared<std::atomic<bool>>(false)) {}

    // Callable from any thread, any number of times; there is no way back.
    void cancel() const { m_flag->store(true, std::memory_order_relaxed); }
    bool isCancelled() const { return m_flag->load(std::memory_order_relaxed); }

    // The flag itself, for loops that poll it on many threads. It lives as long as any copy.
    const std::atomic<bool>& flag() const { return *m_flag; }

private:
    std::shared_ptr<std::atomic<bool>> m_flag;
};

} // namespace tessarine
