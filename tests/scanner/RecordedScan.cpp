#include "RecordedScan.h"

#include <algorithm>

namespace tessarine::testing {

QList<ScanPhase> RecordedScan::phases() const {
    QList<ScanPhase> phases;
    for (const ScanProgress& snapshot : snapshots) {
        if (phases.isEmpty() || phases.back() != snapshot.phase)
            phases.append(snapshot.phase);
    }
    return phases;
}

QList<ScanProgress> RecordedScan::snapshotsIn(ScanPhase phase) const {
    QList<ScanProgress> matching;
    std::copy_if(snapshots.begin(), snapshots.end(), std::back_inserter(matching),
                 [phase](const ScanProgress& snapshot) { return snapshot.phase == phase; });
    return matching;
}

RecordedScan recordScan(const QString& path, const SnapshotReaction& react) {
    FileSystemScanner scanner;
    QList<ScanProgress> snapshots;
    scanner.setProgressObserver([&](const ScanProgress& progress) {
        snapshots.append(progress);
        if (react)
            react(scanner, progress);
    });
    ScanOutcome outcome = scanner.scan(path);
    std::optional<FolderSizes> folderSizes;
    if (scanner.folderSizes())
        folderSizes = *scanner.folderSizes();
    return {std::move(outcome), snapshots, std::move(folderSizes)};
}

AnalysisResult withoutIdentities(AnalysisResult result) {
    result.id = QUuid();
    result.scanDate = QDateTime();
    result.scanDuration = 0;
    for (CategoryStats& stats : result.categoryBreakdown)
        stats.id = QUuid();
    for (ExtensionStats& stats : result.extensionStats)
        stats.id = QUuid();
    for (FileInfo& file : result.largestFiles)
        file.id = QUuid();
    for (PatternInsight& insight : result.insights)
        insight.id = QUuid();
    return result;
}

} // namespace tessarine::testing
