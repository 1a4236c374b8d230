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

// The main window over a history of its own, for one picture.
class Scene {
public:
    explicit Scene(int storedScans = 0)
        : m_store(m_home.path()) {
        testing::storeSampleHistory(m_store, storedScans);
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

    // Lets transitions finish, then writes what the window shows to <build>/screenshots/name.png.
    void save(const QString& name) {
        QVERIFY(window());
        QVERIFY(QTest::qWaitForWindowExposed(window()));
        QTest::qWait(450);
        const QString folder = QStringLiteral(TESSARINE_SCREENSHOT_DIR);
        QVERIFY(QDir().mkpath(folder));
        const QImage image = window()->grabWindow();
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

    // Every screen at the smallest window and at full HD, with names long enough to need
    // eliding: no text may run out of its card.
    void screensAtWindowSizes_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("smallest") << QSize(900, 600);
        QTest::newRow("full-hd") << QSize(1920, 1080);
    }

    void screensAtWindowSizes() {
        QFETCH(QSize, size);
        const QString suffix = QLatin1Char('-') + QString::fromLatin1(QTest::currentDataTag());
        const QString longFolder = QStringLiteral(
            "/Users/ann/Documents/Client Projects 2025/Quarterly Reports and Presentations/"
            "Final Versions Approved by the Board of Directors");
        {
            Scene scene(7);
            scene.window()->resize(size);
            scene.save(QStringLiteral("landing") + suffix);
        }
        {
            Scene scene;
            scene.window()->resize(size);
            scene.state().setCurrentView(AppState::Scanning);
            ScanProgress progress = midScan();
            progress.currentPath = longFolder + QStringLiteral("/Appendix/Spreadsheets/raw data");
            scene.state().setScanProgress(progress);
            scene.save(QStringLiteral("scanning") + suffix);
        }
        {
            Scene scene(3);
            scene.window()->resize(size);
            scene.state().openResult(testing::sampleResult(
                longFolder, QDateTime(QDate(2025, 6, 1), QTime(10, 0), Qt::UTC)));
            scene.save(QStringLiteral("dashboard") + suffix);
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
