#include "RecordedBuild.h"
#include "TestTrees.h"

#include "tree/FolderTreeAssembly.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimeZone>

#include <thread>

using namespace tessarine;
using namespace tessarine::testing;

using Phase = FolderTreeProgress::Phase;

namespace {

// `count` sibling folders below root, each holding one byte.
void makeFolders(const QString& root, int count) {
    for (int i = 0; i < count; ++i)
        writeFile(root + QStringLiteral("/folder%1/byte").arg(i), 1);
}

QList<qint64> processedCounts(const QList<FolderTreeProgress>& records) {
    QList<qint64> counts;
    for (const FolderTreeProgress& record : records)
        counts.append(record.processedItems);
    return counts;
}

FolderTreeProgress building(qint64 total, qint64 processed) {
    return FolderTreeProgress{Phase::building, total, processed, QString(), QDateTime()};
}

} // namespace

class FolderTreeBuildTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void recordsFollowThePhases();
    void updateIntervalScalesWithFolderCount();
    void statusAndRemainingTimeTexts();
    void cancellingDuringEnumerationBuildsNoNode();
    void cancellingDuringNodePassStopsAtNextEntry();
    void cancelledServiceBuildsAgain();
    void taskCancelledAsItStartsBuildsNoNode();
    void recordsReachTheServiceThread();
};

void FolderTreeBuildTest::recordsFollowThePhases() {
    QTemporaryDir dir;
    const QString root = dir.path();
    makeFolders(root, 3);
    writeFile(root + "/folder0/inner/file", 4);
    writeFile(root + "/loose.txt", 2);

    FolderTreeService service;
    const RecordedBuild build = recordBuild(service, root);

    QVERIFY(std::holds_alternative<FolderInfo>(build.outcome));
    const FolderTreeProgress& first = build.records.first();
    QCOMPARE(first.phase, Phase::enumerating);
    QCOMPARE(first.processedItems, 0);
    QCOMPARE(first.currentFolder, root);
    QVERIFY(first.startTime.isValid());
    for (const FolderTreeProgress& record : build.records)
        QCOMPARE(record.startTime, first.startTime);

    // Entries: three folders with a byte each, inner with its file, the loose file.
    const FolderTreeProgress lastFound = build.recordsIn(Phase::enumerating).last();
    QCOMPARE(lastFound.totalItems, 0);
    QCOMPARE(lastFound.processedItems, 9);
    QCOMPARE(lastFound.currentFolder, QStringLiteral("9 items (4 folders)"));

    const QList<FolderTreeProgress> built = build.recordsIn(Phase::building);
    QCOMPARE(built.first().totalItems, 4);
    QCOMPARE(built.first().processedItems, 0);
    QCOMPARE(built.first().currentFolder, root);
    // Every folder reports with an interval of one, the root last and under its own name.
    QCOMPARE(processedCounts(built), (QList<qint64>{0, 1, 2, 3, 4, 5}));
    QCOMPARE(built.last().currentFolder, QFileInfo(root).fileName());

    const FolderTreeProgress& last = build.records.last();
    QCOMPARE(last.phase, Phase::complete);
    QCOMPARE(last.totalItems, 4);
    QCOMPARE(last.processedItems, 5);
    QCOMPARE(last.currentFolder, root);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(service.progress(), std::optional(last));
    QVERIFY(!service.isBuilding());
    QCOMPARE(service.phaseName(), QStringLiteral("complete"));
    QCOMPARE(service.statusText(), QStringLiteral("5 folders processed"));
}

void FolderTreeBuildTest::updateIntervalScalesWithFolderCount() {
    QCOMPARE(FolderTreeAssembly::updateInterval(0), 1);
    QCOMPARE(FolderTreeAssembly::updateInterval(50), 1);
    QCOMPARE(FolderTreeAssembly::updateInterval(399), 1);
    QCOMPARE(FolderTreeAssembly::updateInterval(400), 2);
    QCOMPARE(FolderTreeAssembly::updateInterval(1000), 5);

    QTemporaryDir fifty;
    makeFolders(fifty.path(), 50);
    QList<qint64> everyFolder;
    for (qint64 processed = 0; processed <= 51; ++processed)
        everyFolder.append(processed);
    QCOMPARE(processedCounts(recordBuild(fifty.path()).recordsIn(Phase::building)), everyFolder);

    const QTemporaryDir thousand = makeFastTemporaryDir();
    QVERIFY(thousand.isValid());
    for (int i = 0; i < 1000; ++i)
        QVERIFY(QDir(thousand.path()).mkdir(QStringLiteral("f%1").arg(i)));
    const RecordedBuild build = recordBuild(thousand.path());
    QList<qint64> everyFifth;
    for (qint64 processed = 0; processed <= 1000; processed += 5)
        everyFifth.append(processed);
    // The root is the 1,001st folder processed: neither a multiple of five nor the folder count.
    QCOMPARE(processedCounts(build.recordsIn(Phase::building)), everyFifth);
    QCOMPARE(build.records.last().processedItems, 1001);
    QCOMPARE(build.records.last().totalItems, 1000);
    QVERIFY(build.tree().childFolders.empty());
}

void FolderTreeBuildTest::statusAndRemainingTimeTexts() {
    const QDateTime start(QDate(2024, 3, 5), QTime(10, 0), QTimeZone::utc());
    FolderTreeProgress progress = building(1200, 300);
    progress.startTime = start;
    QCOMPARE(progress.statusText(), QStringLiteral("300 / 1,200 folders"));
    QCOMPARE(progress.estimatedTimeRemaining(start.addSecs(10)), std::optional(30.0));

    QCOMPARE(building(0, 7).statusText(), QStringLiteral("7 folders"));
    QCOMPARE((FolderTreeProgress{Phase::enumerating, 0, 1234, {}, {}}.statusText()),
             QStringLiteral("1,234 items found"));
    QCOMPARE((FolderTreeProgress{Phase::complete, 1200, 1201, {}, {}}.statusText()),
             QStringLiteral("1,201 folders processed"));
    QCOMPARE((FolderTreeProgress{Phase::cancelled, 1200, 5, {}, {}}.statusText()),
             QStringLiteral("Cancelled"));

    // No estimate before anything is known, or while at most five percent is done.
    for (const FolderTreeProgress& early : {building(0, 10), building(1200, 0), building(1200, 60)})
        QCOMPARE(early.estimatedTimeRemaining(start.addSecs(10)), std::nullopt);
    FolderTreeProgress overrun = building(1200, 61);
    overrun.startTime = start;
    QVERIFY(overrun.estimatedTimeRemaining(start.addSecs(10)).value() > 180);
    overrun.processedItems = 1201; // the root is processed after the last counted folder
    QCOMPARE(overrun.estimatedTimeRemaining(start.addSecs(10)), std::optional(0.0));

    QCOMPARE(rawValue(Phase::enumerating), QStringLiteral("Scanning folders..."));
    QCOMPARE(rawValue(Phase::building), QStringLiteral("Building tree..."));
    QCOMPARE(rawValue(Phase::complete), QStringLiteral("Complete"));
    QCOMPARE(rawValue(Phase::cancelled), QStringLiteral("Cancelled"));
    QCOMPARE((FolderTreeError{FolderTreeError::Kind::accessDenied, "/x y"}.errorDescription()),
             QStringLiteral("Cannot access: /x y"));
    QCOMPARE(FolderTreeError{}.errorDescription(),
             QStringLiteral("Folder tree building was cancelled"));
}

void FolderTreeBuildTest::cancellingDuringEnumerationBuildsNoNode() {
    QTemporaryDir dir;
    makeFolders(dir.path(), 20);
    FolderTreeService service;

    const RecordedBuild build =
        recordBuild(service, dir.path(), [](FolderTreeService& tree, const FolderTreeProgress&) {
            tree.setCancelled(true);
        });

    QVERIFY(build.wasCancelled());
    QCOMPARE(build.records.size(), 1);
    QCOMPARE(build.records.first().phase, Phase::enumerating);
    QVERIFY(service.isCancelled());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(service.progress(), std::optional(build.records.first()));
}

void FolderTreeBuildTest::cancellingDuringNodePassStopsAtNextEntry() {
    QTemporaryDir dir;
    makeFolders(dir.path(), 20);

    const RecordedBuild build =
        recordBuild(dir.path(), [](FolderTreeService& tree, const FolderTreeProgress& record) {
            if (record.phase == Phase::building && record.processedItems == 1)
                tree.setCancelled(true);
        });

    QVERIFY(build.wasCancelled());
    QCOMPARE(build.records.last().phase, Phase::building);
    QCOMPARE(build.records.last().processedItems, 1);
    QVERIFY(build.recordsIn(Phase::complete).isEmpty());
}

void FolderTreeBuildTest::cancelledServiceBuildsAgain() {
    QTemporaryDir dir;
    makeFolders(dir.path(), 5);
    FolderTreeService service;
    service.setCancelled(true);
    QVERIFY(recordBuild(service, dir.path(), [](FolderTreeService& tree, const auto&) {
                tree.setCancelled(true);
            }).wasCancelled());

    const RecordedBuild again = recordBuild(service, dir.path());

    QVERIFY(!service.isCancelled());
    QCOMPARE(again.tree().totalSize, 5);
    QCOMPARE(again.tree().childFolders.size(), 5u);
    QCOMPARE(again.records.last().phase, Phase::complete);
}

// The dashboard's Cancel, or the dashboard closing, right after Build: the task is cancelled while
// its worker is still starting, and must not go on to walk the whole tree.
void FolderTreeBuildTest::taskCancelledAsItStartsBuildsNoNode() {
    const QTemporaryDir dir = makeFastTemporaryDir();
    generateTree(dir.path(), 30000, 5u);
    FolderTreeService service;
    const CancelToken task;
    std::optional<FolderTreeOutcome> outcome;
    QList<FolderTreeProgress> records;
    service.setProgressObserver([&](const FolderTreeProgress& record) { records.append(record); });

    std::thread worker([&] { outcome = service.build(dir.path(), task); });
    task.cancel();
    worker.join();

    QVERIFY(std::holds_alternative<FolderTreeError>(*outcome));
    QCOMPARE(std::get<FolderTreeError>(*outcome).kind, FolderTreeError::Kind::cancelled);
    QCOMPARE(records.last().phase, Phase::enumerating);
}

void FolderTreeBuildTest::recordsReachTheServiceThread() {
    QTemporaryDir dir;
    makeFolders(dir.path(), 30);
    FolderTreeService service;
    QList<bool> onServiceThread;
    QList<bool> buildingStates;
    connect(&service, &FolderTreeService::progressChanged, this,
            [&] { onServiceThread.append(QThread::currentThread() == service.thread()); });
    connect(&service, &FolderTreeService::isBuildingChanged, this,
            [&] { buildingStates.append(service.isBuilding()); });
    QList<FolderTreeProgress> made;
    service.setProgressObserver([&](const FolderTreeProgress& record) { made.append(record); });

    FolderTreeOutcome outcome = FolderTreeError{};
    std::thread worker([&] { outcome = service.build(dir.path()); });
    worker.join();
    QVERIFY(!service.progress()); // nothing arrives until the service's thread takes it
    QCoreApplication::sendPostedEvents();

    QVERIFY(std::holds_alternative<FolderInfo>(outcome));
    QCOMPARE(onServiceThread, QList<bool>(made.size(), true));
    QCOMPARE(service.progress(), std::optional(made.last()));
    QCOMPARE(buildingStates, (QList<bool>{true, false}));
    QCOMPARE(service.processedItems(), 31);
    QCOMPARE(service.totalItems(), 30);
}

QTEST_GUILESS_MAIN(FolderTreeBuildTest)
#include "FolderTreeBuildTest.moc"
