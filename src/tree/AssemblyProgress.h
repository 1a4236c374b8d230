#pragma once

#include <QString>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace tessarine {

// The processed-folder count of a node pass, shared by the threads that build its subtrees, and
// the records it is due: one every `interval` folders and one when the count reaches the folder
// count, each of them, in increasing order, as a single thread would make them.
class AssemblyProgress {
public:
    // Told (processed folders, name of the folder just finished).
    using Callback = std::function<void(qint64, const QString&)>;

    AssemblyProgress(qint64 folderCount, qint64 interval, Callback callback);

    // Counts a finished folder. When it is due a record, `name` is asked for the folder's name
    // (decoding it only then) and the callback told, once the record due before it has been made:
    // another thread may have reached a later count in the meantime.
    template <typename NameOf> void finished(NameOf name) {
        const qint64 processed = m_processed.fetch_add(1, std::memory_order_relaxed) + 1;
        if (isDue(processed)) {
            const QString folderName = name();
            passInTurn(processed, &folderName);
        }
    }
    // Counts a folder that makes no record, not even at a count that is due one (a folder that
    // could not be listed).
    void skipped() {
        const qint64 processed = m_processed.fetch_add(1, std::memory_order_relaxed) + 1;
        if (isDue(processed))
            passInTurn(processed, nullptr);
    }

    qint64 processed() const { return m_processed.load(std::memory_order_relaxed); }

private:
    bool isDue(qint64 processed) const {
        return processed % m_interval == 0 || processed == m_folderCount;
    }
    // Waits until the due count before `processed` has been passed, then passes this one: with a
    // record of `name`, or without one when there is no name.
    void passInTurn(qint64 processed, const QString* name);
    // The due count before `processed`; 0 for the first.
    qint64 previousDue(qint64 processed) const;

    const qint64 m_folderCount;
    const qint64 m_interval;
    const Callback m_callback;
    std::atomic<qint64> m_processed = 0;
    std::mutex m_reporting;
    std::condition_variable m_turn;
    qint64 m_passed = 0; // the last due count passed
};

} // namespace tessarine
