#include "SampleHistory.h"
#include "WindowDrag.h"

#include "app/AppState.h"
#include "app/shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include <QDir>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;

namespace {

// Five scans of one folder a week apart as it grows, besides the sample history.
void storeProjectsTrend(PersistenceService& store) {
    const qint64 sizes[] = {41'000'000'000, 43'500'000'000, 42'800'000'000, 47'200'000'000,
                            52'900'000'000};
    for (int week = 0; week < 5; ++week) {
        AnalysisResult scan = testing::sampleResult(
            QStringLiteral("/Users/ann/Projects"),
            QDateTime(QDate(2025, 4, 1).addDays(7 * week), QTime(9, 30), Qt::UTC));
        scan.totalSize = sizes[week];
        scan.fileCount += 1200 * week;
        QVERIFY(!store.save(scan));
    }
}

// The main window over a history of its own, for one picture.
class Scene {
public:
    explicit Scene(int storedScans = 0, bool withTrend = false)
        : m_store(m_home.path()) {
        testing::storeSampleHistory(m_store, storedScans);
        if (withTrend)
            storeProjectsTrend(m_store);
        m_state = std::make_unique<AppState>(m_store);
        AppState::setSharedInstance(m_state.get());
        prepareEngine(m_engine);
        m_engine.load(QUrl(QString::fromLatin1(mainWindowUrl)));
    }

    AppState& state() { return *m_state; }
    QQuickWindow* window() const {
        return m_engine.rootObjects().isEmpty()
                   ? nullptr
                   : qobject_cast<QQuickWindow*>(m_engine.rootObjects().first());
    }

    template <typename T = QObject> T* find(const QString& objectName) const {
        return window() ? window()->findChild<T*>(objectName) : nullptr;
    }

    // Lets transitions finish, then writes what the window shows to <build>/screenshots/name.png.
    void save(const QString& name) { save(name, window()); }
    void save(const QString& name, QQuickWindow* shown) {
        QVERIFY(shown);
        QVERIFY(QTest::qWaitForWindowExposed(shown));
        QTest::qWait(450);
        const QString folder = QStringLiteral(TESSARINE_SCREENSHOT_DIR);
        QVERIFY(QDir().mkpath(folder));
        const QImage image = shown->grabWindow();
        QVERIFY(!image.isNull());
        QVERIFY(image.save(folder + u'/' + name + QStringLiteral(".png")));
    }

private:
    QTemporaryDir m_home;
    PersistenceService m_store;
    std::unique_ptr<AppState> m_state;
    // Made after the state and so destroyed before it: QML holds the state as a singleton.
    QQmlApplicationEngine m_engine;
};

AnalysisResult dashboardResult() {
    return testing::sampleResult(QStringLiteral("/Users/ann/Projects"),
                                 QDateTime(QDate(2025, 6, 1), QTime(10, 0), Qt::UTC));
}

ScanProgress midScan() {
    ScanProgress progress;
    progress.phase = ScanPhase::analyzing;
    progress.filesScanned = 18342;
    progress.foldersScanned = 2210;
    progress.bytesScanned = 7'340'000'000;
    progress.currentPath = QStringLiteral("/Users/ann/Projects/tessarine/build/src/app");
    progress.startTime = QDateTime::currentDateTimeUtc().addSecs(-42);
    progress.estimatedTotalFiles = 48210;
    return progress;
}

} // namespace

// Renders the main window in its characteristic states, for people to look at; the assertions
// only check that each picture was made.
class ScreenshotTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        prepareShell();
    }

    void landing() {
        Scene(0).save(QStringLiteral("landing-empty"));
        Scene(7).save(QStringLiteral("landing-recent"));
    }

    void scanning() {
        Scene scene;
        scene.state().setCurrentView(AppState::Scanning);
        scene.state().setScanProgress(midScan());
        scene.save(QStringLiteral("scanning"));
    }

    void dashboardWithDropOverlay() {
        Scene scene(3);
        scene.state().openResult(dashboardResult());
        scene.save(QStringLiteral("dashboard"));
        testing::WindowDrag drag(scene.window()->contentItem(),
                                 {QUrl::fromLocalFile(QDir::tempPath())});
        QVERIFY(drag.enter());
        scene.save(QStringLiteral("drop-overlay"));
        drag.leave();
    }

    void history() {
        Scene empty(0);
        empty.state().setCurrentView(AppState::History);
        empty.save(QStringLiteral("history-empty"));

        Scene scene(5, true);
        scene.state().setCurrentView(AppState::History);
        scene.save(QStringLiteral("history-trend"));

        auto* scans = scene.find(QStringLiteral("historyScans"));
        QVERIFY(scans);
        scans->setProperty("searchText", QStringLiteral("Project 2"));
        scene.save(QStringLiteral("history-search-hides-trend"));
        scans->setProperty("searchText", QString());

        const QList<AnalysisResult>& stored = scene.state().scanHistory()->results();
        for (const AnalysisResult& picked : {stored.at(0), stored.at(4)})
            QMetaObject::invokeMethod(scans, "toggleSelection",
                                      Q_ARG(tessarine::AnalysisResult, picked));
        scene.save(QStringLiteral("history-selected"));
        QMetaObject::invokeMethod(scene.find(QStringLiteral("deleteConfirmation")), "open");
        scene.save(QStringLiteral("history-delete-confirmation"));
        QMetaObject::invokeMethod(scene.find(QStringLiteral("deleteConfirmation")), "close");
        QMetaObject::invokeMethod(scene.find(QStringLiteral("comparisonSheet")), "open");
        scene.save(QStringLiteral("history-comparison"));
    }

    void help() {
        Scene scene;
        auto* help = scene.find<QQuickWindow>(QStringLiteral("helpWindow"));
        QVERIFY(help);
        QVERIFY(QTest::qWaitForWindowExposed(scene.window()));
        help->show();
        auto* sidebar = help->findChild<QObject*>(QStringLiteral("helpSidebar"));
        QVERIFY(sidebar);
        for (int section = 0; section < 7; ++section) {
            sidebar->setProperty("currentIndex", section);
            scene.save(QStringLiteral("help-%1").arg(section + 1), help);
        }
    }

    void errorAlert() {
        Scene scene(3);
        scene.state().setError(
            AppError::scanFailed(QStringLiteral("Cannot access directory: /Volumes/Backup")));
        scene.save(QStringLiteral("error-alert"));
    }
};

QTEST_MAIN(ScreenshotTest)
#include "ScreenshotTest.moc"
