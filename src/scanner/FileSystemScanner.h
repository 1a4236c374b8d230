#pragma once

#include "model/CancelToken.h"
#include "model/FolderSizes.h"
#include "model/Records.h"
#include "model/ScanOptions.h"
#include "model/ScanProgress.h"
#include "scanner/ScanError.h"

#include <QString>

#include <functional>
#include <mutex>
#include <optional>
#include <variant>

namespace tessarine {

class DirectoryListing;
class FolderSizeTally;
class ScanAggregator;

using ScanOutcome = std::variant<AnalysisResult, ScanError>;

// Turns one folder into one AnalysisResult: a discovery pass lists every item (in parallel, with
// each item's metadata), then an analysis pass folds the items in listing order. One scanner
// serves one scan. scan() blocks its calling thread; cancel() and currentProgress() may be called
// from any other thread meanwhile.
class FileSystemScanner {
public:
    // The analysis pass publishes a snapshot every this many analysed items.
    static constexpr qint64 progressUpdateInterval = 100;

    explicit FileSystemScanner(ScanOptions options = {})
        : m_options(options) {}
    FileSystemScanner(const FileSystemScanner&) = delete;
    FileSystemScanner& operator=(const FileSystemScanner&) = delete;

    // Accepts an absolute or relative path; the result's rootPath is its cleaned absolute form.
    // `task` is the cancellation of the caller's task: cancelled at any time, before this call
    // included, it stops the scan.
    ScanOutcome scan(const QString& folderPath, CancelToken task = CancelToken());

    // Asks a running scan to stop, by cancelling its task. A cancel made before scan() starts is
    // forgotten: the scanner's own flag is the task of the scan it is running.
    void cancel();

    // A copy of the latest published snapshot; none before the scan starts.
    std::optional<ScanProgress> currentProgress() const;

    // Receives every snapshot as it is published, on the thread running scan(), so that a caller
    // can follow the whole sequence instead of sampling it. Set it before scan() starts.
    using ProgressObserver = std::function<void(const ScanProgress&)>;
    void setProgressObserver(ProgressObserver observer) { m_observer = std::move(observer); }

    // Whether scan() also sums every folder's size, for a scan that is saved (on unless set off
    // before scan() starts). The sums are made in the analysis pass, so they cost no extra walk.
    void setKeepsFolderSizes(bool keeps) { m_keepsFolderSizes = keeps; }
    // The folder sizes of a finished scan that kept them; null otherwise. Read it on the thread
    // that ran scan(), or after handing over the result.
    const FolderSizes* folderSizes() const { return m_folderSizes ? &*m_folderSizes : nullptr; }

private:
    DirectoryListing discover(const QString& rootPath, const QDateTime& startTime,
                              const CancelToken& task);
    // False when cancelled. `first` is the opening snapshot of the pass.
    bool analyse(const DirectoryListing& listing, ScanAggregator& aggregator,
                 FolderSizeTally* folderSizes, const ScanProgress& first, const CancelToken& task);
    void publish(ScanProgress progress);
    // Publishes the last snapshot again, in another phase.
    void publishPhase(ScanPhase phase);

    const ScanOptions m_options;
    mutable std::mutex m_mutex;
    std::optional<ScanProgress> m_progress; // guarded by m_mutex
    // The running scan's task, for cancel(); guarded by m_mutex. The walker threads and the
    // analysis poll the task's own flag, not this member.
    CancelToken m_task;
    ProgressObserver m_observer;
    bool m_keepsFolderSizes = true;
    std::optional<FolderSizes> m_folderSizes;
};

} // namespace tessarine
