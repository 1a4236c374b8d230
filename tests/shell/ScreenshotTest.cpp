#include "DesktopPalette.h"
#include "FileTrees.h"
#include "SampleHistory.h"
#include "SampleResults.h"
#include "UserFiles.h"
#include "WindowDrag.h"

#include "app/AppState.h"
#include "design/ColorScheme.h"
#include "shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
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

AnalysisResult dashboardResult(const QString& root = QStringLiteral("/Users/ann/Projects")) {
    return testing::sampleResult(root, QDateTime(QDate(2025, 6, 1), QTime(10, 0), Qt::UTC));
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
        // Without a summary index beside them, the stored scans arrive from a look on another
        // thread.
        QVERIFY(QTest::qWaitFor(
            [&] { return m_state->scanHistory()->count() == storedScans + (withTrend ? 5 : 0); }));
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
    template <typename T = QObject> T* find(const char* objectName) const {
        return window() ? window()->findChild<T*>(QString::fromLatin1(objectName)) : nullptr;
    }

    Scene& resized(QSize size) {
        window()->resize(size);
        return *this;
    }
    Scene& scanning(const QString& currentPath) {
        m_state->setCurrentView(AppState::Scanning);
        m_state->setScanProgress(testing::sampleProgress(currentPath));
        return *this;
    }
    Scene& showing(const AnalysisResult& result) {
        m_state->openResult(result);
        return *this;
    }
    Scene& history() {
        m_state->setCurrentView(AppState::History);
        return *this;
    }

    // Once transitions end, what the window (or another, as Settings) shows goes to
    // <build>/screenshots/name.png, or name-dark.png while the desktop is dark.
    void save(const QString& name, QQuickWindow* shown = nullptr) {
        if (!shown)
            shown = window();
        QVERIFY(shown);
        QVERIFY(QTest::qWaitForWindowExposed(shown));
        const QImage image = settledImage(shown);
        const QString folder = QStringLiteral(TESSARINE_SCREENSHOT_DIR);
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(!image.isNull());
        const QString appearance =
            ColorScheme::instance().dark() ? QStringLiteral("-dark") : QString();
        QVERIFY(image.save(folder + u'/' + name + appearance + QStringLiteral(".png")));
    }

private:
    // The picture once it has stayed the same for longer than an entrance waits to start (up to
    // 200 ms); the scanning ring never stops, so after 4 s the window is taken as it is.
    static QImage settledImage(QQuickWindow* window) {
        constexpr qint64 unchangedFor = 300;
        QImage previous = window->grabWindow();
        QElapsedTimer unchanged;
        unchanged.start();
        QDeadlineTimer deadline(4000);
        while (!deadline.hasExpired() && unchanged.elapsed() < unchangedFor) {
            QSignalSpy swapped(window, &QQuickWindow::frameSwapped);
            window->update();
            if (!swapped.wait(1000))
                break;
            QImage next = window->grabWindow();
            if (next != previous) {
                previous = std::move(next);
                unchanged.restart();
            }
        }
        return previous;
    }

    QTemporaryDir m_home;
    PersistenceService m_store;
    std::unique_ptr<AppState> m_state;
    // Made after the state and so destroyed before it: QML holds the state as a singleton.
    QQmlApplicationEngine m_engine;
};

// The item of that name in the window's visual tree, wherever loaders made it.
QQuickItem* findItem(QQuickItem* root, const QString& objectName) {
    if (root->objectName() == objectName)
        return root;
    for (QQuickItem* child : root->childItems())
        if (QQuickItem* found = findItem(child, objectName))
            return found;
    return nullptr;
}

QQuickItem* findItem(QQuickWindow* window, const char* objectName) {
    return findItem(window->contentItem(), QString::fromLatin1(objectName));
}

} // namespace

// Renders the main window in its characteristic states, for people to look at; the assertions
// only check that each picture was made.
class ScreenshotTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        testing::isolateUserFiles();
        prepareShell();
    }

    void landing() {
        Scene(0).save("landing-empty");
        Scene scene(3);
        scene.state().setError(
            AppError::scanFailed(QStringLiteral("Cannot access directory: /Volumes/Backup")));
        scene.save("error-alert");
    }

    // A drag over the dashboard, and the focus rings Tab and the arrows leave. (The dashboard
    // itself: RealWindowTest and screensAtWindowSizes.)
    void dashboard() {
        Scene scene(3);
        scene.showing(dashboardResult());
        QVERIFY(QTest::qWaitForWindowExposed(scene.window()));
        testing::WindowDrag drag(scene.window()->contentItem(),
                                 {QUrl::fromLocalFile(QDir::tempPath())});
        QVERIFY(drag.enter());
        scene.save("drop-overlay");
        drag.leave();

        auto* button = findItem(scene.window(), "exportToolbarButton");
        QVERIFY(button);
        button->forceActiveFocus(Qt::TabFocusReason);
        scene.save("focus-ring");
        auto* cells = findItem(scene.window(), "categoryTreemapCells");
        QVERIFY(cells);
        cells->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(scene.window(), Qt::Key_Right);
        scene.save("focus-ring-treemap");
    }

    // Every screen at the smallest window and at full HD, with names long enough to need
    // eliding: no text may run out of its card. (The dashboard at the usual size, scrolled,
    // hovered and exported: RealWindowTest.)
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
        Scene(7).resized(size).save("landing" + suffix);
        Scene()
            .resized(size)
            .scanning(longFolder + QStringLiteral("/Appendix/Spreadsheets/raw data"))
            .save("scanning" + suffix);
        Scene(3).resized(size).showing(dashboardResult(longFolder)).save("dashboard" + suffix);
        Scene(5, true).resized(size).history().save("history" + suffix);
    }

    void history() {
        Scene(0).history().save("history-empty");
        Scene scene(5, true);
        scene.history().save("history-trend");

        auto* scans = scene.find("historyScans");
        QVERIFY(scans);
        const QList<ScanSummary>& stored = scene.state().scanHistory()->results();
        for (const ScanSummary& picked : {stored.at(0), stored.at(4)})
            QMetaObject::invokeMethod(scans, "toggleSelection",
                                      Q_ARG(tessarine::ScanSummary, picked));
        scene.save("history-selected");
        QMetaObject::invokeMethod(scene.find("deleteConfirmation"), "open");
        scene.save("history-delete-confirmation");
        QMetaObject::invokeMethod(scene.find("deleteConfirmation"), "close");
        QMetaObject::invokeMethod(scene.find("compareButton"), "clicked");
        scene.save("history-comparison");
    }

    // Two scans of a tree, saved as the application saves every scan, between which one folder
    // grew by 50 MB, one appeared and one went: the sheet lists exactly those folders.
    void historyComparisonOfFolders() {
        QTemporaryDir tree;
        testing::writeFiles(tree.path(), {{"media/videos/clip.mp4", 1'000'000},
                                          {"old/gone/data.bin", 2'000'000},
                                          {"docs/readme.txt", 5000}});
        Scene scene;
        scene.state().startScan(tree.path());
        QTRY_COMPARE(scene.state().scanHistory()->count(), 1);
        QVERIFY(QFile::resize(tree.path() + "/media/videos/clip.mp4", 51'000'000));
        QVERIFY(QDir(tree.path() + "/old/gone").removeRecursively());
        testing::writeFile(tree.path() + "/new/fresh.bin", 3'000'000);
        scene.state().startScan(tree.path());
        QTRY_COMPARE(scene.state().scanHistory()->count(), 2);

        scene.history();
        auto* scans = scene.find("historyScans");
        QVERIFY(scans);
        for (const ScanSummary& picked : scene.state().scanHistory()->results())
            QMetaObject::invokeMethod(scans, "toggleSelection",
                                      Q_ARG(tessarine::ScanSummary, picked));
        QMetaObject::invokeMethod(scene.find("compareButton"), "clicked");
        scene.save("history-comparison-folders");
    }

    // The Settings window with an option on (a header naming the options: RealWindowTest).
    void settings() {
        Scene scene(3);
        scene.state().setScanOptions({.includeHidden = true});
        QVERIFY(QTest::qWaitForWindowExposed(scene.window()));
        auto* settings = scene.find<QQuickWindow>("settingsWindow");
        QVERIFY(settings);
        QMetaObject::invokeMethod(settings, "showSettings");
        scene.save("settings", settings);
        scene.state().setScanOptions({});
    }

    // The screens with painted parts (canvases, treemap cells), switched to dark while shown:
    // nothing may keep its light colours. Taken once, in the light run.
    void switchedToDarkWhileShown() {
        if (ColorScheme::instance().dark())
            QSKIP("taken in the light run");
        const QPalette light = QGuiApplication::palette();
        Scene landing(3);
        Scene scanning;
        scanning.scanning(QStringLiteral("/Users/ann"));
        Scene dashboard(3);
        dashboard.showing(dashboardResult());
        for (Scene* scene : {&landing, &scanning, &dashboard})
            QVERIFY(QTest::qWaitForWindowExposed(scene->window()));
        QGuiApplication::setPalette(testing::darkDesktopPalette());
        landing.save("landing-switched");
        scanning.save("scanning-switched");
        dashboard.save("dashboard-switched");
        QGuiApplication::setPalette(light);
    }
};

// Every picture as a light desktop shows it, then again after the desktop switched to dark.
int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    application.setAttribute(Qt::AA_Use96Dpi, true);
    ScreenshotTest test;
    const int lightFailures = QTest::qExec(&test, argc, argv);
    QGuiApplication::setPalette(testing::darkDesktopPalette());
    return lightFailures + QTest::qExec(&test, argc, argv);
}
#include "ScreenshotTest.moc"
