#include "RecordedScan.h"

#include "TestTrees.h"
#include "scanner/ScanAggregator.h"

#include <QDir>
#include <QFile>

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
    return {std::move(outcome), snapshots};
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

namespace {

// Written independently of the scanner's byte-level rule: the text after the last dot of the
// decoded name, unless the name starts or ends with that dot.
QString extensionOf(const QString& name) {
    const qsizetype dot = name.lastIndexOf('.');
    return dot <= 0 || dot == name.size() - 1 ? QString() : name.sliced(dot + 1).toLower();
}

FileInfo recordOf(const WalkedItem& item) {
    FileInfo info;
    info.path = QFile::decodeName(item.path);
    info.name = QFile::decodeName(item.path.mid(item.path.lastIndexOf('/') + 1));
    info.size = item.size;
    info.fileExtension = extensionOf(info.name);
    info.category = categoryForExtension(info.fileExtension);
    info.depth = item.depth;
    info.modificationDate = item.modifiedMsecs == ListedEntry::unknownModificationTime
                                ? distantPast()
                                : QDateTime::fromMSecsSinceEpoch(item.modifiedMsecs, Qt::UTC);
    info.isDirectory = item.kind == EntryKind::directory || item.kind == EntryKind::package;
    return info;
}

} // namespace

AnalysisResult referenceResult(const QString& root) {
    ScanAggregator aggregator;
    for (const WalkedItem& item : referenceWalk(QFile::encodeName(root))) {
        if (item.kind != EntryKind::symlink && item.kind != EntryKind::unreadable)
            aggregator.add(recordOf(item));
    }
    AnalysisResult result = aggregator.finish();
    result.rootPath = QDir::cleanPath(root);
    result.rootName = QDir(root).dirName();
    return result;
}

} // namespace tessarine::testing
