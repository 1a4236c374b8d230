#pragma once

#include <QString>

#include <atomic>
#include <functional>
#include <mutex>

namespace tessarine {

// The processed-folder count of a node pass, shared by the threads that build its subtrees, and
// the records it is due: one every `interval` folders and one when the count reaches the folder
// count, always in increasing order.
class AssemblyProgress {
public:
    // Told (processed folders, name of the folder just finished).
    using Callback = std::function<void(qint64, const QString&)>;

    AssemblyProgress(qint64 folderCount, qint64 interval, Callback callback);

    // Counts a finished folder. When it is due a record, `name` is asked for the folder's name
    // (decoding it only then) and the callback told; a record that another thread has already
    // overtaken is left out, so that no count ever goes backwards.
    template <typename NameOf> void finished(NameOf name) {
        const qint64 processed = m_processed.fetch_add(1, std::memory_order_relaxed) + 1;
        if (processed % m_interval == 0 || processed == m_folderCount)
            report(processed, name());
    }
    // Counts a folder without a record of its own (one that could not be listed).
    void skipped() { m_processed.fetch_add(1, std::memory_order_relaxed); }

    qint64 processed() const { return m_processed.load(std::memory_order_relaxed); }

private:
    void report(qint64 processed, const QString& name);

    const qint64 m_folderCount;
    const qint64 m_interval;
    const Callback m_callback;
    std::atomic<qint64> m_processed = 0;
    std::mutex m_reporting;
    qint64 m_reported = 0;
};

} // namespace tessarine
