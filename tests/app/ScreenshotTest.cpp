#include "BuildHold.h"
#include "FileTrees.h"
#include "SampleHistory.h"
#include "WindowDrag.h"

#include "app/AppState.h"
#include "app/FolderTreeController.h"
#include "app/shell/ShellEngine.h"
#include "charts/FolderTreemapModel.h"
#include "storage/PersistenceService.h"

#include <QDir>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;

namespace {

// The item named objectName among the items below root (in the item tree, which is not always
// the object tree), or null.
QQuickItem* itemNamed(QQuickItem* root, const QString& objectName) {
    const QList<QQuickItem*> children = root->childItems();
    for (QQuickItem* child : children) {
        if (child->objectName() == objectName)
            return child;
        if (QQuickItem* found = itemNamed(child, objectName))
            return found;
    }
    return nullptr;
}

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

    // Scrolls the dashboard so that the item named objectName is at the top.
    QQuickItem* scrollTo(const QString& objectName) {
        QQuickItem* item = itemNamed(window()->contentItem(), objectName);
        if (!item)
            return nullptr;
        for (QQuickItem* flickable = item->parentItem(); flickable;
             flickable = flickable->parentItem()) {
            auto* content = flickable->property("contentItem").value<QQuickItem*>();
            if (flickable->property("contentY").isValid() && content) {
                flickable->setProperty("contentY", item->mapToItem(content, {0, 0}).y() - 16);
                break;
            }
        }
        return item;
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

    void folderAnalysis() {
        const QTemporaryDir folders = testing::makeFastTemporaryDir();
        testing::generateTree(folders.path(), 6000, 7);
        AnalysisResult result = dashboardResult();
        result.rootPath = folders.path();
        result.folderTree = {};
        Scene scene(3);
        scene.state().openResult(result);
        QQuickItem* section = scene.scrollTo(QStringLiteral("folderAnalysis"));
        QVERIFY(section);
        auto* controller = section->property("controller").value<FolderTreeController*>();

        testing::holdBuildInPhase(*controller->service(), FolderTreeProgress::Phase::building);
        controller->build(result.rootPath);
        QTRY_COMPARE(controller->service()->phaseName(), QStringLiteral("building"));
        scene.save(QStringLiteral("folder-analysis-building"));
        controller->cancel();

        controller->build(result.rootPath);
        QTRY_VERIFY_WITH_TIMEOUT(controller->hasTree(), 60'000);
        scene.scrollTo(QStringLiteral("folderAnalysis"));
        scene.save(QStringLiteral("folder-analysis-tree"));

        auto* treemap = itemNamed(section, QStringLiteral("folderTreemap"))
                            ->property("treemap")
                            .value<FolderTreemapModel*>();
        for (int level = 0; level < 2; ++level) {
            int drillable = 0;
            while (treemap->folderAt(drillable) && !treemap->drillDown(drillable))
                ++drillable;
        }
        QCOMPARE(treemap->pathNames().size(), 2);
        scene.save(QStringLiteral("folder-treemap-drilled"));

        QQuickItem* cells = itemNamed(section, QStringLiteral("treemapCells"));
        const QRectF cell = treemap->cellRect(treemap->cells().count() / 3);
        QTest::mouseMove(scene.window(), cells->mapToScene(cell.center()).toPoint());
        QTRY_VERIFY(treemap->hoveredIndex() >= 0);
        scene.save(QStringLiteral("folder-treemap-hover"));
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
