#include "app/AppState.h"
#include "DashboardResult.h"
#include "FileTrees.h"
#include "StallingMount.h"
#include "UserFiles.h"
#include "app/FolderTreeController.h"
#include "model/Format.h"
#include "model/ScanProgress.h"
#include "model/WorkerThread.h"
#include "storage/PersistenceService.h"
#include "storage/SummaryIndex.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace tessarine;
using testing::StallingMount;
using testing::writeFolders;

namespace {

// Waits for the running scan to end, then lets every worker's outcome, the dropped ones included,
// reach the state, so that nothing still in flight can change it after the checks.
void settle(AppState& state) {
    QTRY_VERIFY_WITH_TIMEOUT(!state.isScanning(), 60000);
    QTRY_COMPARE_WITH_TIMEOUT(runningWorkerThreads(), 0, 60000);
    QCoreApplication::processEvents();
}

// Lets a folder that stopped answering go, and waits for the workers stuck on it to end.
void releaseStuckWorkers(StallingMount& mount) {
    QVERIFY(mount.isStalling()); // no one waited for it
    mount.release();
    QTRY_COMPARE_WITH_TIMEOUT(runningWorkerThreads(), 0, 60000);
    QCoreApplication::processEvents();
}

QStringList historyFiles(const PersistenceService& store) {
    return QDir(store.storagePath()).entryList({QStringLiteral("scan_*.json")}, QDir::Files);
}

} // namespace

// The work the application runs in the background, a scan for AppState and a folder tree build
// for its controller: started, replaced, cancelled, failed, and what reaches the screen of it.
class AppStateTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { testing::isolateUserFiles(); }

    // A scan is shown, saved and listed, counted as Settings say (that they outlive the program is
    // RealWindowTest's); a rescan counts as its result did, whatever Settings say by then, and goes
    // to the head of the history while the previous result stays on display until it is ready.
    void scansAreShownSavedAndCountedAsSettingsSay() {
        QTemporaryDir home, folder;
        writeFolders(folder.path(), 3, 2);
        testing::writeFile(folder.path() + "/.cache/blob", 5000);
        PersistenceService store(home.path());
        const ScanOptions hidden{.includeHidden = true};
        AppState state(store);
        state.setScanOptions(hidden);

        state.startScan(QUrl::fromLocalFile(folder.path()));
        QCOMPARE(state.currentView(), AppState::Scanning);
        settle(state);
        QCOMPARE(state.currentView(), AppState::Dashboard);
        const AnalysisResult counted = *state.currentResult();
        QCOMPARE(counted.scanOptions, hidden);
        QCOMPARE(counted.fileCount, 7);
        QCOMPARE(state.scanHistory()->results(), QList{ScanSummary::of(counted)});
        QCOMPARE(historyFiles(store).size(), 1);

        state.setScanOptions({});
        state.rescan(counted);
        QCOMPARE(state.currentResult()->id, counted.id);
        settle(state);
        QVERIFY(state.currentResult()->id != counted.id);
        QCOMPARE(state.currentResult()->scanOptions, hidden);
        QCOMPARE(state.currentResult()->fileCount, 7);
        QCOMPARE(state.scanHistory()->count(), 2);
        QCOMPARE(state.scanHistory()->results().at(0).id, state.currentResult()->id);
    }

    // A scan that fails or is cancelled goes back to the landing screen and saves nothing; a
    // cancelled one says nothing, and its worker's late outcome changes nothing. (Which folders
    // fail, an empty one among them: FileSystemScannerTest.)
    void scansWithoutAResultSaveNothing() {
        QTemporaryDir home, folder;
        writeFolders(folder.path(), 3, 100);
        PersistenceService store(home.path());
        AppState state(store);
        const QString missing = home.path() + QStringLiteral("/gone \"quoted\"");
        state.startScan(QUrl::fromLocalFile(missing));
        settle(state);
        QCOMPARE(state.currentView(), AppState::Landing);
        QCOMPARE(state.error()->errorDescription(),
                 QStringLiteral("Scan failed: Cannot access directory: ") + missing);
        state.clearError();
        state.startScan(folder.path());
        state.cancelScan();
        QCOMPARE(state.currentView(), AppState::Landing);
        const std::optional<ScanProgress> atCancel = state.scanProgress();
        settle(state);
        QVERIFY(!state.hasError());
        QVERIFY(!state.hasCurrentResult());
        QCOMPARE(state.scanProgress(), atCancel);
        QCOMPARE(state.scanHistory()->count(), 0);
        QVERIFY(historyFiles(store).isEmpty());
    }

    // The result of a scan that cannot be saved stays on display, with the save's error (how
    // the store fails to write is HistoryStoreTest's).
    void unusableHistoryFolderReportsLoadFailureAndStaysUsable() {
        QTemporaryDir home, folder;
        writeFolders(folder.path(), 3, 2);
        testing::writeFile(home.path() + QStringLiteral("/blocker"), 1);
        PersistenceService store(home.path() + QStringLiteral("/blocker"));
        AppState state(store);

        QCOMPARE(state.scanHistory()->count(), 0);
        QVERIFY(state.error()->errorDescription().startsWith(
            QStringLiteral("Failed to load: Storage directory not accessible")));

        // A pending error stays through a new scan until the save replaces it.
        state.startScan(folder.path());
        QVERIFY(state.error()->errorDescription().startsWith(QStringLiteral("Failed to load: ")));
        settle(state);
        QCOMPARE(state.currentView(), AppState::Dashboard);
        QVERIFY(state.hasCurrentResult());
        QCOMPARE(state.scanHistory()->count(), 0);
        QVERIFY(state.error()->errorDescription().startsWith(
            QStringLiteral("Failed to save: Storage directory not accessible")));
    }

    // A scan made on a server arrives as ncdu's export: it is stored and shown with the tree it
    // came with, and a rescan does not go looking for a folder of that name here.
    void importedScanIsShownStoredAndNeverRescannedHere() {
        QTemporaryDir home, files;
        PersistenceService store(home.path());
        AppState state(store);
        const QString exported = testing::writeFile(
            files.filePath("server.json"),
            QByteArray(R"([1,2,{"progname":"ncdu","progver":"1.18","timestamp":1700000000},)"
                       R"([{"name":"/srv"},[{"name":"www"},{"name":"index.html","asize":700}]]])"));
        state.importScan(QUrl::fromLocalFile(exported));
        QTRY_COMPARE(state.currentView(), AppState::Dashboard);
        const AnalysisResult shown = *state.currentResult();
        QCOMPARE(shown.rootPath, "/srv");
        QCOMPARE(shown.totalSize, 700);
        QCOMPARE(shown.folderTree->childFolders.front().name, "www");
        QCOMPARE(historyFiles(store).size(), 1);

        state.rescan(shown);
        QCOMPARE(state.currentView(), AppState::Dashboard);
        QVERIFY(state.error()->errorDescription().contains("another machine"));

        state.importScan(QUrl::fromLocalFile(files.filePath("missing.json")));
        QTRY_VERIFY(state.error()->errorDescription().startsWith("Import failed: "));
        QCOMPARE(historyFiles(store).size(), 1);
    }

    // Newest first, broken files skipped and left alone; another process (tessarine-cli scan
    // --save) writes through a store of its own and the list follows, also after the whole folder
    // was deleted and made again. A scan opened from the list is read from its file; deleted, it
    // stays on display.
    void historyFollowsTheFolderOnDisk() {
        QTemporaryDir home;
        PersistenceService store(home.path());
        const AnalysisResult old = testing::plainResult(QStringLiteral("/a/old"),
                                                        QDateTime(QDate(2023, 5, 1), {}, Qt::UTC));
        const AnalysisResult recent = testing::plainResult(
            QStringLiteral("/a/recent"), QDateTime(QDate(2024, 5, 1), {}, Qt::UTC));
        QVERIFY(!store.save(old));
        QVERIFY(!store.save(recent));
        const QString brokenPath = store.historyFilePath(QUuid::createUuid());
        testing::writeFile(brokenPath, 0);
        AppState state(store);
        ScanHistoryModel& history = *state.scanHistory();
        const auto summaries = [](const QList<AnalysisResult>& results) {
            QList<ScanSummary> list;
            for (const AnalysisResult& result : results)
                list.append(ScanSummary::of(result));
            return list;
        };
        // No index yet: the rows arrive from a look on another thread.
        QTRY_COMPARE(history.results(), summaries({recent, old}));
        QSignalSpy removals(&history, &QAbstractItemModel::rowsRemoved);

        PersistenceService otherProcess(home.path());
        const AnalysisResult saved = testing::plainResult(
            QStringLiteral("/a/new"), QDateTime(QDate(2025, 5, 1), {}, Qt::UTC));
        QVERIFY(!otherProcess.save(saved));
        QTRY_COMPARE(history.results(), summaries({saved, recent, old}));
        // The rows already listed were kept, not removed and listed again.
        QCOMPARE(removals.count(), 0);
        state.openStoredScan(history.results().at(0));
        QCOMPARE(state.currentResult(), saved);
        // Deleting the scan on display keeps it on display.
        state.deleteScan(history.results().at(0));
        QCOMPARE(state.currentResult(), saved);
        QVERIFY(!QFile::exists(store.historyFilePath(saved.id)));

        QVERIFY(QFile::remove(store.historyFilePath(old.id)));
        QTRY_COMPARE(history.results(), summaries({recent}));
        QVERIFY(QFile::exists(brokenPath));
        QVERIFY(!state.hasError());

        QVERIFY(QDir(store.storagePath()).removeRecursively());
        QTRY_COMPARE(history.count(), 0);
        QVERIFY(!otherProcess.save(old));
        QTRY_COMPARE(history.results(), summaries({old}));
        // A start that finds every file in the index shows the index's rows.
        QTRY_COMPARE(readSummaryIndex(store.storagePath()).size(), 1);
        AppState started(store);
        QTRY_COMPARE(started.scanHistory()->results(), summaries({old}));
        QVERIFY(QFile::remove(store.historyFilePath(old.id)));
        state.openStoredScan(ScanSummary::of(old));
        QCOMPARE(state.error()->errorDescription(), "Failed to load: File not found");
    }

    // Scans stuck on a folder that does not answer (a hung network mount): the screen names the
    // folder, and neither the next scan nor the state going away waits for them. As many stuck as
    // the machine has cores, which a pool of that size would leave no room beside; each replaced
    // by the next, whose outcome alone reaches the state.
    void scansRunBesideStuckOnes() {
        StallingMount mount;
        SKIP_WITHOUT_FUSE(mount);
        QTemporaryDir home, folder;
        writeFolders(folder.path(), 3, 2);
        PersistenceService store(home.path());
        const int stuck = QThread::idealThreadCount();
        {
            AppState state(store);
            for (int scan = 1; scan <= stuck; ++scan) {
                state.startScan(mount.path());
                QVERIFY(mount.waitForStalls(scan));
            }
            QTRY_COMPARE_WITH_TIMEOUT(state.scanProgress()->unansweredFolder,
                                      mount.stallingFolder(), 10000);
            state.startScan(folder.path());
            QTRY_COMPARE_WITH_TIMEOUT(state.currentView(), AppState::Dashboard, 10000);
            QCOMPARE(state.currentResult()->rootPath, folder.path());

            state.startScan(mount.path());
            QVERIFY(mount.waitForStalls(stuck + 1));
        }
        releaseStuckWorkers(mount);
        QCOMPARE(historyFiles(store).size(), 1);
    }

    // Cancel, Build again and closing the dashboard while a build is stuck on a folder that does
    // not answer: none of them waits for it, and its late outcome changes nothing.
    void treeBuildsBesideAStuckOne() {
        StallingMount mount;
        SKIP_WITHOUT_FUSE(mount);
        FolderTreeController controller;
        controller.build(mount.path());
        QVERIFY(mount.waitForStalls());
        QTRY_COMPARE_WITH_TIMEOUT(controller.service()->currentFolder(),
                                  format::waitingFor(QStringLiteral("stalls")), 10000);
        controller.cancel();
        controller.build(mount.path() + QStringLiteral("/answers"));
        QTRY_COMPARE(controller.state(), FolderTreeController::Ready);
        QCOMPARE(controller.tree()->totalSize, 3000);
        {
            FolderTreeController closing;
            closing.build(mount.path());
            QVERIFY(mount.waitForStalls(2));
        }
        releaseStuckWorkers(mount);
        QCOMPARE(controller.state(), FolderTreeController::Ready);
        QCOMPARE(controller.tree()->totalSize, 3000);
        QVERIFY(!controller.service()->isBuilding());
        QCOMPARE(controller.service()->currentFolder(), mount.path() + QStringLiteral("/answers"));
    }
};

QTEST_GUILESS_MAIN(AppStateTest)
#include "AppStateTest.moc"
