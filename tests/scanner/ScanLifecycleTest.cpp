#include "FileTrees.h"
#include "RecordedScan.h"
#include "ReferenceWalk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

// The progress a sequential walk shows once it has analysed `count` items.
ScanProgress expectedAfter(const std::vector<WalkedItem>& walk, qsizetype count) {
    ScanProgress progress;
    progress.phase = ScanPhase::analyzing;
    for (qsizetype i = 0; i < count; ++i) {
        const WalkedItem& item = walk[std::size_t(i)];
        if (item.kind == EntryKind::directory) {
            ++progress.foldersScanned;
        } else {
            ++progress.filesScanned;
            progress.bytesScanned += item.size;
        }
    }
    progress.currentPath = QFile::decodeName(walk[std::size_t(count - 1)].path);
    progress.estimatedTotalFiles = qint64(walk.size());
    return progress;
}

} // namespace

class ScanLifecycleTest : public QObject {
    Q_OBJECT

private slots:
    void publishesEveryHundredAnalysedItems() {
        QTemporaryDir dir;
        writeFolders(dir.path(), 50, 4); // 250 items, folders and files interleaved
        const std::vector<WalkedItem> walk = referenceWalk(QFile::encodeName(dir.path()));
        QCOMPARE(walk.size(), 250u);

        const RecordedScan scan = recordScan(dir.path());

        QCOMPARE(scan.phases(), (QList<ScanPhase>{ScanPhase::initializing, ScanPhase::scanning,
                                                  ScanPhase::analyzing, ScanPhase::finalizing,
                                                  ScanPhase::complete}));
        const QDateTime startTime = scan.snapshots.front().startTime;
        for (const ScanProgress& snapshot : scan.snapshots)
            QCOMPARE(snapshot.startTime, startTime);
        // Discovery snapshots past the opening one (only a slow machine shows them) carry a path
        // and counts that never run ahead of the listing.
        const QList<ScanProgress> discovery = scan.snapshotsIn(ScanPhase::scanning);
        QCOMPARE(discovery.front().filesScanned + discovery.front().foldersScanned, 0);
        for (const ScanProgress& snapshot : discovery.sliced(1)) {
            QVERIFY(snapshot.currentPath.startsWith(dir.path()));
            QVERIFY(snapshot.filesScanned + snapshot.foldersScanned <= 250);
            QVERIFY(!snapshot.estimatedTotalFiles);
        }

        const QList<ScanProgress> analysis = scan.snapshotsIn(ScanPhase::analyzing);
        QCOMPARE(analysis.size(), 3);
        ScanProgress opening;
        opening.phase = ScanPhase::analyzing;
        opening.startTime = startTime;
        opening.estimatedTotalFiles = 250;
        QCOMPARE(analysis[0], opening);
        for (qsizetype periodic : {1, 2}) {
            ScanProgress expected = expectedAfter(walk, periodic * 100);
            expected.startTime = startTime;
            QCOMPARE(analysis[periodic], expected);
        }
        // The closing snapshots repeat the last periodic one; only the result has the final totals.
        QCOMPARE(scan.snapshots.back().filesScanned, analysis[2].filesScanned);
    }

    // Cancel right after a drop, or a second New Scan: the task is cancelled while its worker is
    // still starting, and must not go on to walk the whole tree.
    void taskCancelledAsItStartsListsOnlyPart() {
        const QTemporaryDir dir = makeFastTemporaryDir();
        generateTree(dir.path(), 30000, 5u);
        const qint64 items = qint64(referenceWalk(QFile::encodeName(dir.path())).size());
        FileSystemScanner scanner;
        const CancelToken task;
        std::optional<ScanOutcome> outcome;

        std::thread worker([&] { outcome = scanner.scan(dir.path(), task); });
        task.cancel();
        worker.join();

        QVERIFY(std::holds_alternative<ScanError>(*outcome));
        const ScanProgress last = *scanner.currentProgress();
        QVERIFY(last.phase == ScanPhase::scanning || last.phase == ScanPhase::cancelled);
        QVERIFY(last.estimatedTotalFiles.value_or(0) < items);
    }

    // Discovery stores each item's metadata beside it; the analysis never goes back to the disk, so
    // files deleted in between neither disturb it nor change its figures.
    void analysesWhatDiscoveryFoundEvenIfFilesVanish() {
        QTemporaryDir dir;
        writeFolders(dir.path(), 50, 4);
        const AnalysisResult undisturbed = recordScan(dir.path()).result();

        bool removed = false;
        const RecordedScan scan =
            recordScan(dir.path(), [&](FileSystemScanner&, const ScanProgress& progress) {
                if (progress.phase == ScanPhase::analyzing && progress.estimatedTotalFiles &&
                    !removed) {
                    removed = true;
                    for (int folder = 0; folder < 50; folder += 2)
                        QDir(QStringLiteral("%1/folder%2").arg(dir.path()).arg(folder))
                            .removeRecursively();
                }
            });

        QVERIFY(removed);
        QVERIFY(!QFile::exists(dir.path() + "/folder0/file0"));
        QCOMPARE(withoutIdentities(scan.result()), withoutIdentities(undisturbed));
    }
};

QTEST_GUILESS_MAIN(ScanLifecycleTest)
#include "ScanLifecycleTest.moc"
