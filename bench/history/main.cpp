#include "app/AppState.h"
#include "frames/FrameCost.h"
#include "model/FileCategory.h"
#include "shell/ShellEngine.h"
#include "storage/PersistenceService.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

using namespace tessarine;

namespace {

constexpr int scanCount = 1'000;
constexpr double frameTargetMs = 32;

// A stored scan as a real one looks on disk: categories and a hundred largest files, so that
// loading the history reads files of a real size. Forty folders, each scanned 25 times.
AnalysisResult generatedScan(int index) {
    AnalysisResult scan;
    scan.rootPath = QStringLiteral("/home/ann/folder %1").arg(index % 40);
    scan.rootName = scan.rootPath.section(u'/', -1);
    scan.scanDate = QDateTime(QDate(2024, 1, 1), QTime(8, 0), Qt::UTC).addSecs(3600LL * index);
    scan.totalSize = 1'000'000'000LL + 7'919'000LL * index;
    scan.fileCount = 10'000 + index;
    scan.folderCount = 900 + index % 50;
    scan.maxDepth = 6 + index % 5;
    for (FileCategory category : allFileCategories()) {
        CategoryStats stats;
        stats.category = category;
        stats.fileCount = 10;
        stats.totalSize = 1000;
        scan.categoryBreakdown.append(stats);
    }
    for (int i = 0; i < 100; ++i) {
        FileInfo file;
        file.name = QStringLiteral("file %1.bin").arg(i);
        file.path = scan.rootPath + u'/' + file.name;
        file.size = 1'000'000 - i;
        scan.largestFiles.append(file);
    }
    return scan;
}

void printFrame(const char* what, double ms) {
    std::printf("%s  %s: %.1f ms (target %.0f ms)\n", ms <= frameTargetMs ? "PASS" : "MISS", what,
                ms, frameTargetMs);
}

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication app(argc, argv);
    prepareShell();

    QTemporaryDir home;
    PersistenceService store(home.path());
    for (int i = 0; i < scanCount; ++i) {
        if (store.save(generatedScan(i))) {
            std::fprintf(stderr, "cannot write the generated history\n");
            return 1;
        }
    }

    QElapsedTimer clock;
    clock.start();
    AppState state(store);
    AppState::setSharedInstance(&state);
    const double loadMs = double(clock.nsecsElapsed()) / 1e6;
    QQmlApplicationEngine engine;
    prepareEngine(engine);
    engine.load(QUrl(QString::fromLatin1(mainWindowUrl)));
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (!window)
        return 1;
    nextFrameCost(*window, [&] { window->show(); });
    const double startMs = double(clock.nsecsElapsed()) / 1e6;
    // The first showing compiles the screen's QML; a later one makes a new screen from it.
    const double firstHistoryMs =
        nextFrameCost(*window, [&] { state.setCurrentView(AppState::History); });
    nextFrameCost(*window, [&] { state.setCurrentView(AppState::Landing); });
    const double historyMs =
        nextFrameCost(*window, [&] { state.setCurrentView(AppState::History); });

    auto* list = window->findChild<QQuickItem*>(QStringLiteral("historyList"));
    auto* scans = window->findChild<QObject*>(QStringLiteral("historyScans"));
    if (!list || !scans)
        return 1;
    double slowestScroll = 0;
    int scrollFrames = 0;
    for (qreal y = 0; y < 84 * 200; y += 84 / 3.0, ++scrollFrames)
        slowestScroll = std::max(slowestScroll,
                                 nextFrameCost(*window, [&] { list->setProperty("contentY", y); }));
    const double searchMs = nextFrameCost(
        *window, [&] { scans->setProperty("searchText", QStringLiteral("folder 17")); });
    const int shown = list->property("count").toInt();

    std::printf("history: %d stored scans, backend %s\n", scanCount,
                qPrintable(QQuickWindow::sceneGraphBackend()));
    std::printf("  loading the history at start: %.0f ms\n", loadMs);
    std::printf("  start to the first frame of the window: %.0f ms\n", startMs);
    std::printf("  first frame of the history, its QML compiled on the way: %.1f ms\n",
                firstHistoryMs);
    printFrame("frame that shows the history again", historyMs);
    printFrame(qPrintable(QStringLiteral("slowest of %1 frames while scrolling").arg(scrollFrames)),
               slowestScroll);
    printFrame(qPrintable(QStringLiteral("frame of a search leaving %1 scans").arg(shown)),
               searchMs);
    return 0;
}
