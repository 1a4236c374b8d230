#include "app/FolderTreeController.h"
#include "charts/FolderTreemapModel.h"
#include "charts/TreemapCells.h"
#include "frames/FrameCost.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>

Q_IMPORT_QML_PLUGIN(Tessarine_DesignPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_AppPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ChartsPlugin)
Q_IMPORT_QML_PLUGIN(Tessarine_ScreensPlugin)

using namespace tessarine;

namespace {

// Runs the event loop until the controller holds a tree or gives up; returns whether it got one.
bool waitForTree(FolderTreeController& controller) {
    QEventLoop loop;
    QObject::connect(&controller, &FolderTreeController::stateChanged, &loop, [&] {
        if (controller.state() != FolderTreeController::Building)
            loop.quit();
    });
    QTimer::singleShot(600'000, &loop, &QEventLoop::quit);
    loop.exec();
    return controller.hasTree();
}

// The cell of the level's largest folder that has sub-folders of its own, or -1.
int largestDrillableCell(const FolderTreemapModel& treemap) {
    for (int i = 0; i < treemap.cells().count(); ++i) {
        const FolderInfo* folder = treemap.folderAt(i);
        if (folder && !folder->childFolders.empty())
            return i;
    }
    return -1;
}

} // namespace

// Usage: tessarine-folder-analysis-bench FOLDER
int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    AnalysisResult result;
    result.rootPath = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();

    QQuickWindow window;
    window.resize(1200, 800);
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(":/"));
    QQmlComponent component(&engine);
    component.setData(
        "import QtQuick\nimport Tessarine.Screens\nFolderAnalysisSection { width: 1200 }", QUrl());
    std::unique_ptr<QObject> created(
        component.createWithInitialProperties({{"result", QVariant::fromValue(result)}}));
    auto* section = qobject_cast<QQuickItem*>(created.get());
    if (!section) {
        std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        return 1;
    }
    section->setParentItem(window.contentItem());
    nextFrameCost(window, [&] { window.show(); });

    auto* controller = section->property("controller").value<FolderTreeController*>();
    QElapsedTimer clock;
    clock.start();
    controller->build(result.rootPath);
    if (!waitForTree(*controller)) {
        std::fprintf(stderr, "the build failed: %s\n", qPrintable(controller->errorText()));
        return 1;
    }
    const double buildSeconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    nextFrameCost(window, [] {});

    auto* view = section->findChild<QQuickItem*>(QStringLiteral("folderTreemap"));
    auto* treemap = view ? view->property("treemap").value<FolderTreemapModel*>() : nullptr;
    if (!treemap) {
        std::fprintf(stderr, "no treemap shown\n");
        return 1;
    }
    // Into the largest folder and back out: each level laid out and drawn anew.
    const qsizetype topCells = treemap->cells().count();
    const int drilled = largestDrillableCell(*treemap);
    const double drilledFrame = nextFrameCost(window, [&] { treemap->drillDown(drilled); });
    const qsizetype drilledCells = treemap->cells().count();
    const double topLevelFrame = nextFrameCost(window, [&] { treemap->goToRoot(); });
    // Lets the drill-down animation settle so the sweep measures hovering alone.
    QEventLoop settle;
    QTimer::singleShot(400, &settle, &QEventLoop::quit);
    settle.exec();
    const auto* cells = view->findChild<TreemapCells*>();
    if (!cells) {
        std::fprintf(stderr, "no treemap cells shown\n");
        return 1;
    }
    const QRectF area = cells->mapRectToScene(QRectF(0, 0, cells->width(), cells->height()));
    const SweepCost sweep = sweepFrameCost(window, area);

    std::printf("folder analysis of %s: %lld folders\n", qPrintable(result.rootPath),
                static_cast<long long>(controller->service()->totalItems()));
    std::printf("  build through the section: %.2f s\n", buildSeconds);
    std::printf("  first frame of the top level (%lld cells): %.1f ms\n",
                static_cast<long long>(topCells), topLevelFrame);
    std::printf("  first frame of a drilled level (%lld cells): %.1f ms\n",
                static_cast<long long>(drilledCells), drilledFrame);
    std::printf("  slowest of %d frames while the pointer sweeps: %.1f ms\n", sweep.frames,
                sweep.slowest);
    std::printf("build-seconds %.3f\n", buildSeconds);
    return 0;
}
