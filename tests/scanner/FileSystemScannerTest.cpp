#include "TestTrees.h"

#include "scanner/FileSystemScanner.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

// The outcome of one scan together with every snapshot it published, in order.
struct RecordedScan {
    ScanOutcome outcome;
    QList<ScanProgress> snapshots;

    const AnalysisResult& result() const { return std::get<AnalysisResult>(outcome); }
    QList<ScanPhase> phases() const {
        QList<ScanPhase> phases;
        for (const ScanProgress& snapshot : snapshots)
            if (phases.isEmpty() || phases.back() != snapshot.phase)
                phases.append(snapshot.phase);
        return phases;
    }
};

RecordedScan
scanRecording(const QString& path,
              std::function<void(FileSystemScanner&, const ScanProgress&)> react = {}) {
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

} // namespace

class FileSystemScannerTest : public QObject {
    Q_OBJECT

private slots:
    void scansOneFile();
    void failsOnFoldersWithNothingToCount();
};

void FileSystemScannerTest::scansOneFile() {
    QTemporaryDir dir;
    writeFile(dir.path() + "/notes.TXT", 42);

    const RecordedScan scan = scanRecording(dir.path());

    QCOMPARE(scan.phases(),
             (QList<ScanPhase>{ScanPhase::initializing, ScanPhase::scanning, ScanPhase::analyzing,
                               ScanPhase::finalizing, ScanPhase::complete}));
    // Fewer items than one progress interval: the closing snapshots still show the opening
    // counters of the analysis, with its estimate.
    const ScanProgress& last = scan.snapshots.back();
    QCOMPARE(last.filesScanned, 0);
    QCOMPARE(last.estimatedTotalFiles, 1);
    QCOMPARE(last.startTime, scan.snapshots.front().startTime);

    const AnalysisResult& result = scan.result();
    QCOMPARE(result.rootPath, QDir::cleanPath(dir.path()));
    QCOMPARE(result.rootName, QDir(dir.path()).dirName());
    QCOMPARE(result.fileCount, 1);
    QCOMPARE(result.folderCount, 0);
    QCOMPARE(result.totalSize, 42);
    QCOMPARE(result.maxDepth, 1);
    QCOMPARE(result.largestFiles.size(), 1);
    const FileInfo& file = result.largestFiles.front();
    QCOMPARE(file.path, dir.path() + "/notes.TXT");
    QCOMPARE(file.name, QStringLiteral("notes.TXT"));
    QCOMPARE(file.fileExtension, QStringLiteral("txt"));
    QCOMPARE(file.category, FileCategory::documents);
    QCOMPARE(file.depth, 1);
    QCOMPARE(file.modificationDate, QFileInfo(file.path).lastModified().toUTC());
    QVERIFY(!result.folderTree);
}

void FileSystemScannerTest::failsOnFoldersWithNothingToCount() {
    QTemporaryDir dir;
    QDir(dir.path()).mkpath("empty");
    writeFile(dir.path() + "/hidden-only/.secret", 10);
    writeFile(dir.path() + "/hidden-only/.cache/data.bin", 10);

    for (const char* name : {"empty", "hidden-only", "missing"}) {
        const QString path = dir.path() + "/" + name;
        const RecordedScan scan = scanRecording(path + "/");
        const ScanError error = std::get<ScanError>(scan.outcome);
        QCOMPARE(error.kind, ScanError::Kind::cannotAccessDirectory);
        QCOMPARE(error.errorDescription(), "Cannot access directory: " + path);
        QCOMPARE(scan.snapshots.back().phase, ScanPhase::scanning);
    }
}

QTEST_GUILESS_MAIN(FileSystemScannerTest)
#include "FileSystemScannerTest.moc"
