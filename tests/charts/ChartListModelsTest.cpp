#include "charts/CategoryListModel.h"
#include "charts/CategoryTreemapModel.h"
#include "charts/DepthListModel.h"
#include "charts/ExtensionListModel.h"
#include "charts/TreemapCellStyle.h"
#include "charts/TreemapCells.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QLocale>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace tessarine;

namespace {

QVariant at(const QAbstractItemModel& model, int row, int role) {
    return model.data(model.index(row, 0), role);
}

QStringList column(const QAbstractItemModel& model, int role) {
    QStringList values;
    for (int row = 0; row < model.rowCount(); ++row)
        values.append(at(model, row, role).toString());
    return values;
}

CategoryStats category(FileCategory kind, qint64 size) {
    CategoryStats stats;
    stats.category = kind;
    stats.totalSize = size;
    stats.fileCount = size / 10;
    return stats;
}

// Extensions "e0".."e<count-1>" of sizes count, count-1, ... 1, summing to the total.
AnalysisResult resultWithExtensions(int count) {
    AnalysisResult result;
    for (int i = 0; i < count; ++i) {
        ExtensionStats stats;
        stats.ext = QStringLiteral("e%1").arg(i);
        stats.totalSize = count - i;
        result.extensionStats.insert(stats.ext, stats);
        result.totalSize += stats.totalSize;
    }
    return result;
}

TreemapCell cell(const QRectF& rect, const QString& name, qint64 size) {
    TreemapCell made;
    made.rect = rect;
    made.speech = {name, size, 1000};
    return made;
}

} // namespace

class ChartListModelsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void categoriesLargestFirstKeepingTies() {
        AnalysisResult result;
        result.totalSize = 200;
        result.categoryBreakdown = {
            category(FileCategory::code, 20), category(FileCategory::images, 100),
            category(FileCategory::audio, 20), category(FileCategory::other, 0)};
        CategoryListModel model;
        QAbstractItemModelTester tester(&model);
        model.setResult(result);
        QCOMPARE(column(model, CategoryListModel::NameRole),
                 QStringList({"Images", "Code", "Audio", "Other"}));
        QCOMPARE(column(model, CategoryListModel::ShareRole),
                 QStringList({"50.0%", "10.0%", "10.0%", "0.0%"}));
        QCOMPARE(model.largestSize(), 100);
        QCOMPARE(model.rowOf(int(FileCategory::audio)), 2);
        QCOMPARE(model.rowOf(int(FileCategory::videos)), -1);

        result.totalSize = 0;
        model.setResult(result);
        QCOMPARE(column(model, CategoryListModel::ShareRole),
                 QStringList({"0.0%", "0.0%", "0.0%", "0.0%"}));
    }

    void extensionsFirstTenThenFifteen() {
        // Sizes run count..1, so the hidden ones of 15 shown 10 are 5..1.
        for (const auto& [extensions, showAll, rows, hiddenCount, hiddenSize] :
             {std::tuple{15, false, 10, 5, 5 + 4 + 3 + 2 + 1},
              {10, false, 10, 0, 0},
              {15, true, 15, 0, 0},
              {0, false, 0, 0, 0}}) {
            ExtensionListModel model;
            QAbstractItemModelTester tester(&model);
            model.setResult(resultWithExtensions(extensions));
            // Toggling there and back leaves the rows as they were, with every change announced.
            model.setShowAll(!showAll);
            model.setShowAll(showAll);
            QCOMPARE(model.rowCount(), rows);
            QCOMPARE(model.hiddenCount(), hiddenCount);
            QCOMPARE(model.hiddenSize(), qint64(hiddenSize));
            if (extensions > 0)
                QCOMPARE(at(model, 0, ExtensionListModel::DisplayNameRole).toString(), ".e0");
        }
    }

    void depthLevelsAndPeak() {
        AnalysisResult result;
        result.depthDistribution = {
            {2, {9, 1, 90}}, {0, {5, 1, 50}}, {1, {9, 2, 90}}, {10, {1, 0, 1}}};
        DepthListModel model;
        QAbstractItemModelTester tester(&model);
        model.setResult(result);
        QCOMPARE(model.rowCount(), 4);
        QCOMPARE(model.peakDepth(), 1);
        QCOMPARE(model.totalFiles(), 24);
        QCOMPARE(model.largestFileCount(), 9);
        // Which slice a point picks: ChartGeometryTest::axisTicksBarsAndSlices.
        QCOMPARE(model.rowAt(399, 400), 3);
    }

    void treemapFollowsSizeAndSelection() {
        AnalysisResult result;
        result.totalSize = 100;
        result.categoryBreakdown = {
            category(FileCategory::audio, 5), category(FileCategory::images, 50),
            category(FileCategory::code, 15), category(FileCategory::videos, 30)};
        CategoryTreemapModel model;
        QAbstractItemModelTester tester(&model);
        model.setResult(result);
        model.setAreaWidth(400);
        model.setAreaHeight(200);
        QCOMPARE(column(model, CategoryListModel::NameRole),
                 QStringList({"Images", "Videos", "Code", "Audio"}));
        QCOMPARE(model.cells().count(), 4);
        // A screen reader hears each cell as one element (its value: everyCellIsAnElementOfItsOwn).
        QCOMPARE(model.cells().cells().at(1).speech.name, "Videos category");
        QCOMPARE(model.cells().cells().at(1).border.width, 0);
        model.setSelectedCategory(int(FileCategory::videos));
        QCOMPARE(model.cells().cells().at(1).border.width, 3);

        // A new size moves the same cells in place: a reset would make every label again.
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        model.setAreaWidth(800);
        QCOMPARE(resets.count(), 0);
        qreal area = 0;
        for (int row = 0; row < model.rowCount(); ++row)
            area += at(model, row, CategoryTreemapModel::CellWidthRole).toReal() *
                    at(model, row, CategoryTreemapModel::CellHeightRole).toReal();
        QCOMPARE(area, 800.0 * 200);
    }

    // A folder's label sits in its frame, which keeps the gap once: a level drawn inside a cell is
    // padded 3 points more, not twice that.
    void folderLabelsInsetOnce() {
        FolderInfo inner;
        inner.name = QStringLiteral("inner");
        inner.totalSize = 10;
        FolderInfo outer = inner;
        outer.name = QStringLiteral("outer");
        outer.childFolders = {inner};
        FolderInfo root;
        root.totalSize = 10;
        root.childFolders = {outer};
        const QList<TreemapCell> nested =
            folderTreemapCells(layoutNestedTreemap(root, QRectF(0, 0, 300, 200)), 10);
        QCOMPARE(nested[0].label.title, "outer");
        QCOMPARE(nested[0].label.inset, 3.0);
        QCOMPARE(nested.last().label.title, "inner");
        QCOMPARE(nested.last().label.inset, 0.0);
    }

    // What a screen reader finds in a treemap whose cells are painted, not items.
    void everyCellIsAnElementOfItsOwn() {
        QQuickWindow window;
        window.resize(400, 300);
        TreemapCells cells(window.contentItem());
        cells.setSize(QSizeF(400, 300));
        // A nested cell lies over its parent and is the one found under the pointer.
        cells.setCells(TreemapCellList({cell(QRectF(0, 0, 300, 300), "Documents", 750),
                                        cell(QRectF(300, 0, 100, 300), "Music", 255),
                                        cell(QRectF(10, 10, 50, 50), "Taxes", 5)}));

        QAccessibleInterface* treemap = QAccessible::queryAccessibleInterface(&cells);
        QVERIFY(treemap);
        QCOMPARE(treemap->role(), QAccessible::List);
        QCOMPARE(treemap->childCount(), 3);
        QAccessibleInterface* music = treemap->child(1);
        QCOMPARE(music->role(), QAccessible::ListItem);
        QCOMPARE(music->text(QAccessible::Name), "Music");
        // The share is truncated, never rounded up.
        QCOMPARE(music->text(QAccessible::Value), "255 bytes, 25 percent");
        QCOMPARE(music->parent(), treemap);
        QCOMPARE(treemap->indexOfChild(music), 1);

        const QPoint insideTaxes = window.mapToGlobal(QPoint(20, 20));
        QCOMPARE(treemap->childAt(insideTaxes.x(), insideTaxes.y()), treemap->child(2));

        QSignalSpy clicked(&cells, &TreemapCells::clicked);
        QSignalSpy opened(&cells, &TreemapCells::doubleClicked);
        music->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.at(0).at(0).toInt(), 1);
        QCOMPARE(opened.count(), 1);

        // Laid out anew, the treemap speaks of its new cells only.
        const QAccessible::Id stale = QAccessible::uniqueId(treemap->child(2));
        cells.setCells(TreemapCellList({cell(QRectF(0, 0, 400, 300), "Everything", 1000)}));
        QCOMPARE(treemap->childCount(), 1);
        QVERIFY(!QAccessible::accessibleInterface(stale));
        QCOMPARE(treemap->child(0)->text(QAccessible::Name), "Everything");
    }
};

QTEST_MAIN(ChartListModelsTest)

#include "ChartListModelsTest.moc"
