#include "DashboardResult.h"
#include "SampleHistory.h"
#include "WindowDrag.h"

#include "app/AppState.h"
#include "app/shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include <QDir>
#include <QQmlApplicationEngine>
#include <QQmlProperty>
#include <QQuickItem>
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
    // A picture of the pointer's hover is taken at once: the offscreen window forgets the
    // pointer within a few frames.
    enum Timing { AfterTransitions, Immediately };
    void save(const QString& name, Timing timing = AfterTransitions) {
        QVERIFY(window());
        QVERIFY(QTest::qWaitForWindowExposed(window()));
        if (timing == AfterTransitions)
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

// A full result as a scan of a busy projects folder gives it.
AnalysisResult fullResult(int categories, bool withInsights = true) {
    AnalysisResult result =
        testing::dashboardResult(QStringLiteral("/Users/ann/Projects"), categories, 40, 20, 100);
    if (withInsights) {
        PatternInsight cache;
        cache.type = InsightType::largeCache;
        cache.title = QStringLiteral("Large cache files");
        cache.description = QStringLiteral("4 cache folders hold 1.2 GB");
        cache.affectedSize = 1'200'000'000;
        cache.affectedCount = 4;
        PatternInsight modules = cache;
        modules.type = InsightType::nodeModules;
        modules.title = QStringLiteral("node_modules folders");
        modules.description = QStringLiteral("12 node_modules folders found");
        modules.affectedSize = 860'000'000;
        result.insights = {cache, modules};
    }
    return result;
}

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

// The dashboard's scroll area and the named item in it, scrolled so that the item's top shows.
QQuickItem* scrollTo(QQuickWindow* window, const char* objectName) {
    auto* scroller = findItem(window, "dashboardScroller");
    auto* item = findItem(window, objectName);
    if (!scroller || !item)
        return nullptr;
    auto* flickable =
        QQmlProperty::read(scroller, QStringLiteral("contentItem")).value<QQuickItem*>();
    const qreal top =
        item->mapToItem(flickable->property("contentItem").value<QQuickItem*>(), QPointF()).y();
    const qreal end = flickable->property("contentHeight").toReal() - flickable->height();
    flickable->setProperty("contentY", std::clamp(top - 60, 0.0, std::max(end, 0.0)));
    return item;
}

QPoint centerOf(const QQuickItem* item, qreal fractionX = 0.5) {
    return item->mapToScene(QPointF(item->width() * fractionX, item->height() / 2)).toPoint();
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

    // Every page of a full dashboard, then its interactive states.
    void fullDashboard() {
        Scene scene(3);
        scene.window()->resize(1200, 800);
        scene.state().openResult(fullResult(9));
        scene.save(QStringLiteral("dashboard-full-1"));
        auto* scroller = findItem(scene.window(), "dashboardScroller");
        QVERIFY(scroller);
        auto* flickable =
            QQmlProperty::read(scroller, QStringLiteral("contentItem")).value<QQuickItem*>();
        const qreal end = flickable->property("contentHeight").toReal() - flickable->height();
        for (int page = 2; (page - 1) * flickable->height() < end + flickable->height(); ++page) {
            flickable->setProperty("contentY", std::min((page - 1) * flickable->height(), end));
            scene.save(QStringLiteral("dashboard-full-%1").arg(page));
        }

        QQuickItem* treemap = scrollTo(scene.window(), "categoryTreemapCells");
        QVERIFY(treemap);
        QTest::qWait(100);
        QTest::mouseMove(scene.window(), centerOf(treemap, 0.6));
        QTRY_VERIFY(treemap->property("hoveredIndex").toInt() >= 0);
        scene.save(QStringLiteral("dashboard-treemap-hover"), Scene::Immediately);
        QTest::mouseClick(scene.window(), Qt::LeftButton, {}, centerOf(treemap, 0.6));
        QTest::mouseMove(scene.window(), QPoint(5, 5));
        scene.save(QStringLiteral("dashboard-category-selected"));

        QQuickItem* showAll = scrollTo(scene.window(), "showAllExtensionsButton");
        QVERIFY(showAll);
        QTest::qWait(100);
        QTest::mouseClick(scene.window(), Qt::LeftButton, {}, centerOf(showAll));
        QQuickItem* depth = scrollTo(scene.window(), "depthHoverArea");
        QTest::qWait(100);
        QTest::mouseMove(scene.window(), centerOf(depth, 0.25));
        QTest::mouseMove(scene.window(), centerOf(depth, 0.3));
        QTRY_VERIFY(!findItem(scene.window(), "depthSummary")->isVisible());
        scene.save(QStringLiteral("dashboard-depth-hover-extensions-all"), Scene::Immediately);

        QQuickItem* search = scrollTo(scene.window(), "largestFilesSearch");
        QVERIFY(search);
        QTest::qWait(100);
        QTest::mouseClick(scene.window(), Qt::LeftButton, {}, centerOf(search));
        for (const char typed : std::string_view("file 1"))
            QTest::keyClick(scene.window(), typed);
        QQuickItem* table = findItem(scene.window(), "largestFilesTableView");
        QVERIFY(table);
        QTest::qWait(100);
        const QPoint firstRow = table->mapToScene(QPointF(150, 20)).toPoint();
        QTest::mouseClick(scene.window(), Qt::LeftButton, {}, firstRow);
        QTest::mouseClick(scene.window(), Qt::LeftButton, Qt::ControlModifier,
                          firstRow + QPoint(0, 80));
        scene.save(QStringLiteral("dashboard-table-search-selection"));

        QQuickItem* exportButton = findItem(scene.window(), "exportToolbarButton");
        QVERIFY(exportButton);
        QTest::mouseClick(scene.window(), Qt::LeftButton, {}, centerOf(exportButton));
        scene.save(QStringLiteral("dashboard-export-sheet"));
    }

    void dashboardVariants() {
        {
            Scene scene(0);
            scene.state().openResult(fullResult(12));
            scene.save(QStringLiteral("dashboard-12-categories"));
        }
        Scene scene(0);
        scene.state().openResult(fullResult(4, false));
        // The end of the page, where the insights would be.
        QVERIFY(scrollTo(scene.window(), "moreExtensionsFooter"));
        scene.save(QStringLiteral("dashboard-no-insights"));
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
