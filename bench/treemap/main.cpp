#include "charts/TreemapCellStyle.h"
#include "charts/TreemapCells.h"
#include "charts/geometry/NestedTreemap.h"
#include "frames/FrameCost.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

using namespace tessarine;

namespace {

constexpr int folderCount = 5'000;
constexpr int nestedParents = 20;
constexpr int nestedChildren = 50;

// A level as the folder tree stores it: sizes falling off like real folders (a few large, a long
// tail of small ones), the largest with sub-folders of their own so that two levels nest.
FolderInfo sampleLevel() {
    FolderInfo root;
    root.name = QStringLiteral("root");
    for (int i = 0; i < folderCount; ++i) {
        FolderInfo child;
        child.name = QString::number(i);
        child.totalSize = 4'000'000'000 / (i + 1) + 1000;
        if (i < nestedParents) {
            for (int j = 0; j < nestedChildren; ++j) {
                FolderInfo grandchild;
                grandchild.name = QString::number(j);
                grandchild.totalSize = child.totalSize / (2 * (j + 1)) / 3;
                child.childFolders.push_back(grandchild);
            }
        }
        root.totalSize += child.totalSize;
        root.childFolders.push_back(std::move(child));
    }
    return root;
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    const FolderInfo root = sampleLevel();
    const QRectF bounds(0, 0, 1000, 600);

    double slowestLayout = 0;
    QList<TreemapCell> cells;
    for (int run = 0; run < 10; ++run) {
        QElapsedTimer clock;
        clock.start();
        cells = folderTreemapCells(layoutNestedTreemap(root, bounds), root.totalSize);
        slowestLayout = std::max(slowestLayout, static_cast<double>(clock.nsecsElapsed()) / 1e6);
    }

    QQuickWindow window;
    window.resize(1000, 600);
    TreemapCells item(window.contentItem());
    item.setSize(bounds.size());
    nextFrameCost(window, [&] { window.show(); });
    // New cells repaint everything: the level laid out again, one point narrower or not, as when
    // the window is resized.
    const QList<TreemapCell> narrower =
        folderTreemapCells(layoutNestedTreemap(root, bounds.adjusted(0, 0, -1, 0)), root.totalSize);
    double slowestFullFrame = 0;
    for (int run = 0; run < 6; ++run) {
        const QList<TreemapCell>& next = run % 2 == 0 ? narrower : cells;
        slowestFullFrame = std::max(
            slowestFullFrame, nextFrameCost(window, [&] { item.setCells(TreemapCellList(next)); }));
    }

    // The painting alone, which is most of a full frame.
    QImage canvas(bounds.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    double slowestPaint = 0;
    for (int run = 0; run < 5; ++run) {
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        QElapsedTimer clock;
        clock.start();
        item.paint(&painter);
        slowestPaint = std::max(slowestPaint, static_cast<double>(clock.nsecsElapsed()) / 1e6);
    }

    const SweepCost sweep = sweepFrameCost(window, bounds);

    std::printf("treemap: %lld cells (%d folders, %d nested), backend %s\n",
                static_cast<long long>(cells.size()), folderCount, nestedParents * nestedChildren,
                qPrintable(QQuickWindow::sceneGraphBackend().isEmpty()
                               ? QStringLiteral("default")
                               : QQuickWindow::sceneGraphBackend()));
    std::printf("  layout and styling, slowest of 10: %.1f ms\n", slowestLayout);
    std::printf("  painting every cell, slowest of 5: %.1f ms\n", slowestPaint);
    std::printf("  slowest of 6 frames after setting new cells: %.1f ms\n", slowestFullFrame);
    std::printf("  slowest of %d frames while the pointer sweeps: %.1f ms\n", sweep.frames,
                sweep.slowest);
    return 0;
}
