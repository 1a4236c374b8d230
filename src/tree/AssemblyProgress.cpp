#include "tree/AssemblyProgress.h"

namespace tessarine {

AssemblyProgress::AssemblyProgress(qint64 folderCount, qint64 interval, Callback callback)
    : m_folderCount(folderCount)
    , m_interval(interval)
    , m_callback(std::move(callback)) {}

// A thread that reaches a due count passes it at once, with nothing it could stop at in between,
// so the wait always ends; it is rare and short, as due counts lie `interval` folders apart.
void AssemblyProgress::passInTurn(qint64 processed, const QString* name) {
    std::unique_lock lock(m_reporting);
    m_turn.wait(lock, [&] { return m_passed == previousDue(processed); });
    m_passed = processed;
    if (name)
        m_callback(processed, *name);
    lock.unlock();
    m_turn.notify_all();
}

qint64 AssemblyProgress::previousDue(qint64 processed) const {
    const qint64 multiple = (processed - 1) / m_interval * m_interval;
    return m_folderCount < processed && m_folderCount > multiple ? m_folderCount : multiple;
}

} // namespace tessarine
