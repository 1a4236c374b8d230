#include "tree/AssemblyProgress.h"

namespace tessarine {

AssemblyProgress::AssemblyProgress(qint64 folderCount, qint64 interval, Callback callback)
    : m_folderCount(folderCount)
    , m_interval(interval)
    , m_callback(std::move(callback)) {}

void AssemblyProgress::report(qint64 processed, const QString& name) {
    const std::lock_guard lock(m_reporting);
    if (processed <= m_reported)
        return;
    m_reported = processed;
    m_callback(processed, name);
}

} // namespace tessarine
