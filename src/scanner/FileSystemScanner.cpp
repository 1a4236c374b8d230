#include "scanner/FileSystemScanner.h"

#include "model/PathBytes.h"
#include "model/PathNames.h"
#include "scanner/DirectoryWalker.h"
#include "scanner/FolderSizeTally.h"
#include "scanner/ListingAnalysis.h"
#include "scanner/ScanAggregator.h"

#include <QElapsedTimer>

#include <chrono>

namespace tessarine {

namespace {

// Discovery snapshots come no closer together than this, however fast folders are listed.
constexpr std::chrono::milliseconds discoveryPublishInterval{120};

ScanProgress snapshot(ScanPhase phase, const QDateTime& startTime) {
    ScanProgress progress;
    progress.phase = phase;
    progress.startTime = startTime;
    return progress;
}

} // namespace

ScanOutcome FileSystemScanner::scan(const QString& folderPath, CancelToken task) {
    {
        std::lock_guard lock(m_mutex);
        m_task = task;
    }
    QElapsedTimer clock;
    clock.start();
    const QDateTime startTime = QDateTime::currentDateTimeUtc();
    const QString rootPath = cleanRootPath(folderPath);
    publish(snapshot(ScanPhase::initializing, startTime));
    ScanAggregator aggregator;
    publish(snapshot(ScanPhase::scanning, startTime));

    const DirectoryListing listing = discover(rootPath, startTime, task);
    // An empty, unreadable or hidden-only folder, or a cancel before anything was found.
    if (listing.isEmpty())
        return ScanError{ScanError::Kind::cannotAccessDirectory, rootPath};

    ScanProgress first = snapshot(ScanPhase::analyzing, startTime);
    first.estimatedTotalFiles = listing.itemCount();
    publish(first);
    std::optional<FolderSizeTally> folderSizes;
    if (m_keepsFolderSizes)
        folderSizes.emplace();
    if (!analyse(listing, aggregator, folderSizes ? &*folderSizes : nullptr, first, task)) {
        publishPhase(ScanPhase::cancelled);
        return ScanError{ScanError::Kind::cancelled, QString()};
    }
    if (folderSizes)
        m_folderSizes = folderSizes->finish();

    publishPhase(ScanPhase::finalizing);
    AnalysisResult result = aggregator.finish();
    result.scanDuration = double(clock.nsecsElapsed()) / 1e9;
    publishPhase(ScanPhase::complete);
    result.scanDate = QDateTime::currentDateTimeUtc();
    result.rootPath = rootPath;
    result.rootName = lastPathComponent(rootPath);
    result.scanOptions = m_options;
    return result;
}

DirectoryListing FileSystemScanner::discover(const QString& rootPath, const QDateTime& startTime,
                                             const CancelToken& task) {
    auto lastPublish = std::chrono::steady_clock::now();
    DirectoryWalker::Options options;
    options.cancelled = &task.flag();
    options.scanOptions = m_options;
    options.progressInterval = discoveryPublishInterval;
    options.onProgress = [&](const WalkProgress& walk) {
        // Before the first folder is listed there is no path to show and nothing counted yet,
        // unless that folder keeps the walk waiting.
        const bool waiting = !walk.unansweredFolderPath.isEmpty();
        if ((!waiting && (walk.items == 0 || walk.recentFolderPath.isEmpty())) ||
            std::chrono::steady_clock::now() - lastPublish < discoveryPublishInterval)
            return;
        ScanProgress progress = snapshot(ScanPhase::scanning, startTime);
        progress.filesScanned = walk.items - walk.folders;
        progress.foldersScanned = walk.folders;
        progress.currentPath =
            pathFromBytes(waiting ? walk.unansweredFolderPath : walk.recentFolderPath);
        if (waiting)
            progress.unansweredFolder = progress.currentPath;
        publish(std::move(progress));
        lastPublish = std::chrono::steady_clock::now();
    };
    return DirectoryWalker(std::move(options)).walk(rootPath);
}

bool FileSystemScanner::analyse(const DirectoryListing& listing, ScanAggregator& aggregator,
                                FolderSizeTally* folderSizes, const ScanProgress& first,
                                const CancelToken& task) {
    ListingAnalysis analysis(aggregator, task.flag(), progressUpdateInterval,
                             [&](const QString& itemPath) {
                                 ScanProgress progress = first;
                                 progress.filesScanned = aggregator.fileCount();
                                 progress.foldersScanned = aggregator.folderCount();
                                 progress.bytesScanned = aggregator.totalSize();
                                 progress.currentPath = itemPath;
                                 publish(std::move(progress));
                             });
    if (folderSizes)
        analysis.tallyFolderSizes(*folderSizes);
    return analysis.fold(listing);
}

void FileSystemScanner::cancel() {
    std::lock_guard lock(m_mutex);
    m_task.cancel();
}

std::optional<ScanProgress> FileSystemScanner::currentProgress() const {
    std::lock_guard lock(m_mutex);
    return m_progress;
}

void FileSystemScanner::publish(ScanProgress progress) {
    {
        std::lock_guard lock(m_mutex);
        m_progress = progress;
    }
    // Outside the lock: an observer may well read currentProgress() or cancel().
    if (m_observer)
        m_observer(progress);
}

void FileSystemScanner::publishPhase(ScanPhase phase) {
    ScanProgress progress = *currentProgress();
    progress.phase = phase;
    publish(std::move(progress));
}

} // namespace tessarine
