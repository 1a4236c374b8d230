#include "StuckFolderWindowTest.h"

#include "DashboardResult.h"
#include "FileTrees.h"
#include "RealWindow.h"
#include "StallingMount.h"
#include "storage/PersistenceService.h"

#include <QTest>

namespace tessarine::testing {

namespace {

const QString waiting = QStringLiteral("Waiting for stalls to respond...");

// The real program beside a folder that stops answering (a FUSE file system, as a hung network
// mount): the scan and the folder tree that wait on it name it, Cancel leaves them behind, a scan
// and a build started meanwhile go ahead, the window keeps answering and Quit ends the program
// while the folder still does not answer. Skipped where FUSE cannot be mounted.
class StuckFolderWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    // Made at the start of this scenario: its deadline runs from the mount.
    std::unique_ptr<StallingMount> m_mount;
    std::unique_ptr<RealApp> m_app;

private slots:
    void initTestCase() {
        m_mount = std::make_unique<StallingMount>();
        SKIP_WITHOUT_FUSE(*m_mount);
        const QString plain = m_folder.filePath(QStringLiteral("Plain"));
        for (const char* name : {"a.txt", "b.txt", "c.txt"})
            writeFile(plain + QLatin1Char('/') + QLatin1String(name), 1'000);
        m_app = std::make_unique<RealApp>(QStringList{m_mount->stallingFolder()});
        // Earlier scans to reach from the sidebar: one of a folder that answers, one of the folder
        // that does not, whose tree is to be built.
        PersistenceService history(m_app->home() + QStringLiteral("/data"));
        const QDateTime yesterday = QDateTime::currentDateTimeUtc().addDays(-1);
        QVERIFY(!history.save(plainResult(plain, yesterday)));
        QVERIFY(!history.save(plainResult(m_mount->stallingFolder(), yesterday)));
        QVERIFY(m_app->start());
    }

    void cleanup() {
        if (!m_app)
            return;
        m_app->screenshot(QString::fromLatin1(QTest::currentTestFunction()));
        if (m_app->isRunning())
            QCOMPARE(m_app->warnings(), QStringList());
    }

    // The scan waits on its very first folder, the root, as the build does below.
    void scanNamesTheFolderItWaitsFor() {
        QVERIFY(m_mount->waitForStalls());
        QVERIFY(!m_app->waitFor(waiting).isEmpty());
    }

    void cancelledScanLeavesItBehind() {
        QVERIFY(m_app->click(QStringLiteral("cancelButton")));
        QVERIFY(!m_app->waitFor(QStringLiteral("Drop a folder here")).isEmpty());
    }

    void nextScanFinishesBesideIt() {
        QVERIFY(m_app->click(QStringLiteral("Open scan of Plain")));
        QVERIFY(m_app->click(QStringLiteral("rescanButton")));
        // The stored scan counted no files; the new one finds the folder's three.
        QVERIFY(!m_app->waitFor(QStringLiteral("Files, 3"), 30'000).isEmpty());
        QVERIFY(m_mount->isStalling());
    }

    void buildNamesTheRootItWaitsFor() {
        QVERIFY(m_app->click(QStringLiteral("Open scan of stalls")));
        QVERIFY(!m_app->waitFor(m_mount->stallingFolder()).isEmpty());
        const QRect page = m_app->find(QStringLiteral("dashboardScroller"));
        const QRect build = m_app->scrollTo(QStringLiteral("Build Folder Treemap"), page.center());
        QVERIFY(!build.isEmpty());
        m_app->click(build.center());
        QVERIFY(m_mount->waitForStalls(2));
        QVERIFY(
            !m_app->scrollTo(QStringLiteral("folderTreeProgressCard"), page.center()).isEmpty());
        QVERIFY(!m_app->waitFor(waiting).isEmpty());
        // The scan phase's small spinner is drawn: its dots are dark on the light card.
        const QImage spinner = m_app->grab(m_app->find(QStringLiteral("folderTreeSpinner")));
        QVERIFY(!spinner.isNull());
        int dark = 0;
        for (int y = 0; y < spinner.height(); ++y) {
            for (int x = 0; x < spinner.width(); ++x)
                dark += spinner.pixelColor(x, y).valueF() < 0.5f;
        }
        QVERIFY2(dark > 0, "the spinner shows nothing");
    }

    // Build again while the cancelled build still waits: the window answers a key at once.
    void buildAgainLeavesTheWindowAnswering() {
        QVERIFY(m_app->click(QStringLiteral("Cancel")));
        QVERIFY(m_app->click(QStringLiteral("Build Folder Treemap")));
        QVERIFY(m_mount->waitForStalls(3));
        m_app->key(QStringLiteral("ctrl+question"));
        QVERIFY(!m_app->waitFor(QStringLiteral("helpSidebar"), 3'000).isEmpty());
        m_app->key(QStringLiteral("ctrl+w"));
        QVERIFY(m_app->waitUntilGone(QStringLiteral("helpSidebar"), 3'000));
    }

    void quitEndsTheProgramWhileItWaits() {
        m_app->key(QStringLiteral("ctrl+q"));
        QVERIFY(m_app->waitForExit(3'000));
        QVERIFY(m_mount->isStalling());
    }
};

} // namespace

int runStuckFolderWindowTest(int argc, char* argv[]) {
    StuckFolderWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace tessarine::testing

#include "StuckFolderWindowTest.moc"
