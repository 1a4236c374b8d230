#include "FileTrees.h"
#include "RecordedScan.h"
#include "ReferenceWalk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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
