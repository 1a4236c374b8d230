#include "charts/geometry/AxisTicks.h"
#include "charts/geometry/BarExtent.h"
#include "charts/geometry/CategoryTreemapLayout.h"
#include "charts/geometry/CatmullRomCurve.h"
#include "charts/geometry/FolderBars.h"
#include "charts/geometry/NestedTreemap.h"
#include "charts/geometry/SlicePicking.h"
#include "model/SaturatingSum.h"

#include <QTest>

#include <limits>
#include <numeric>

using namespace tessarine;

namespace {

CategoryStats stat(FileCategory category, qint64 size) {
    CategoryStats stats;
    stats.category = category;
    stats.totalSize = size;
    return stats;
}

QList<CategoryStats> categoriesOfSizes(const QList<qint64>& sizes) {
    QList<CategoryStats> categories;
    for (qsizetype i = 0; i < sizes.size(); ++i)
        categories.append(stat(allFileCategories()[i], sizes[i]));
    return categories;
}

FolderInfo folder(const QString& name, qint64 size, qint64 files = 1,
                  FolderInfoList children = {}) {
    FolderInfo info;
    info.location = FolderPath("/root/" + name);
    info.name = name;
    info.totalSize = size;
    info.fileCount = files;
    info.childFolders = std::move(children);
    return info;
}

// A folder whose sub-folders have the given sizes, plus directFiles bytes of its own.
FolderInfo parentOf(const QList<qint64>& sizes, qint64 directFiles = 0) {
    FolderInfoList children;
    qint64 total = directFiles;
    for (qsizetype i = 0; i < sizes.size(); ++i) {
        children.push_back(folder(QString::number(i), sizes[i]));
        addSaturating(total, sizes[i]);
    }
    return folder("parent", total, sizes.size() + 3, std::move(children));
}

QStringList names(const TreemapLevel& level) {
    QStringList list;
    for (const TreemapItem& item : level.items)
        list << item.folder->name;
    return list;
}

} // namespace

class ChartGeometryTest : public QObject {
    Q_OBJECT

private slots:
    void axisTicksBarsAndSlices() {
        for (const auto& [maxValue, ticks] :
             {std::pair{qint64(0), std::vector<qint64>{0, 1}},
              {100, {0, 50, 100}},
              {101, {0, 50, 100, 150}},
              {4'300'000'000, {0, 2'000'000'000, 4'000'000'000, 6'000'000'000}}})
            QCOMPARE(niceAxisTicks(maxValue), ticks);

        QCOMPARE(barExtent(25, 100, 200, 0), 50.0);
        // A tiny extension, or one of no total, keeps the minimum.
        QCOMPARE(barExtent(1, 1'000'000, 200, extensionBarMinimum), 4.0);
        QCOMPARE(barExtent(5, 0, 200, extensionBarMinimum), 4.0);

        // Three slices over 300 points; a little left of the first still picks it.
        for (const auto& [x, width, index] : {std::tuple{0.0, 300.0, 0},
                                              {299.9, 300.0, 2},
                                              {300.0, 300.0, -1},
                                              {-0.5, 300.0, 0},
                                              {-150.0, 300.0, -1},
                                              {0.0, 0.0, -1}})
            QCOMPARE(sliceAt(x, width, 3).value_or(-1), index);
    }

    void curvePassesThroughItsPoints() {
        const QList<QPointF> points{{0, 100}, {10, 20}, {200, 30}, {210, 150}, {400, 150}};
        const auto segments = catmullRomCurve(points);
        QCOMPARE(segments.size(), 4u);
        for (std::size_t i = 0; i < segments.size(); ++i) {
            QCOMPARE(segments[i].start, points[i]);
            QCOMPARE(segments[i].end, points[i + 1]);
            // Smooth: the tangents on both sides of an inner point are parallel.
            if (i > 0) {
                const QPointF in = segments[i - 1].end - segments[i - 1].control2;
                const QPointF out = segments[i].control1 - segments[i].start;
                QVERIFY(qAbs(in.x() * out.y() - in.y() * out.x()) <
                        1e-6 * (1 + in.manhattanLength() * out.manhattanLength()));
            }
        }
        // Centripetal: the unevenly spaced points do not swing the curve past their x range.
        for (const CubicSegment& segment : segments) {
            QVERIFY(segment.control1.x() >= segment.start.x() - 1e-9);
            QVERIFY(segment.control2.x() <= segment.end.x() + 1e-9);
        }

        QVERIFY(catmullRomCurve(std::vector<QPointF>{}).empty());
        QVERIFY(catmullRomCurve(std::vector<QPointF>{{1, 1}}).empty());
        const auto straight = catmullRomCurve(std::vector<QPointF>{{0, 0}, {10, 10}});
        QCOMPARE(straight.size(), 1u);
        for (const QPointF& control : {straight[0].control1, straight[0].control2})
            QCOMPARE(control.x(), control.y());
        // Repeated points (two scans of the same size on the same date) give no division by 0.
        const std::vector<QPointF> repeated{{0, 0}, {0, 0}, {5, 5}};
        for (const CubicSegment& segment : catmullRomCurve(repeated))
            QVERIFY(qIsFinite(segment.control1.x()) && qIsFinite(segment.control2.y()));
    }

    void categoryWorkedExample() {
        const auto rects =
            calculateTreeMapRects(categoriesOfSizes({5, 50, 15, 30}), 100, QRectF(0, 0, 400, 200));
        QCOMPARE(rects.size(), 4u);
        const QList<QRectF> expected{QRectF(0, 0, 200, 200), QRectF(200, 0, 120, 200),
                                     QRectF(320, 0, 80, 150), QRectF(320, 150, 80, 50)};
        const QList<qint64> sizes{50, 30, 15, 5};
        for (qsizetype i = 0; i < 4; ++i) {
            QCOMPARE(rects[i].stat.totalSize, sizes[i]);
            QCOMPARE(rects[i].rect, expected[i]);
        }
    }

    void categoryEdges() {
        const QRectF bounds(0, 0, 400, 200);
        QVERIFY(calculateTreeMapRects({}, 100, bounds).empty());
        QVERIFY(calculateTreeMapRects(categoriesOfSizes({10}), 0, bounds).empty());
        QVERIFY(calculateTreeMapRects(categoriesOfSizes({10}), -5, bounds).empty());

        // One category with the whole total fills the area.
        QCOMPARE(calculateTreeMapRects(categoriesOfSizes({70}), 70, bounds)[0].rect, bounds);

        // A sliver keeps 1 point; the free area moves by its true extent.
        const auto sliver =
            calculateTreeMapRects(categoriesOfSizes({1, 999'999}), 1'000'000, bounds);
        QCOMPARE(sliver[1].rect.width(), 1.0);
        QCOMPARE(sliver[1].rect.x(), sliver[0].rect.width());
        QVERIFY(sliver[1].rect.x() > 399);

        // Categories adding up to less than the total leave the rest of the area empty.
        const auto partial = calculateTreeMapRects(categoriesOfSizes({50, 25}), 100, bounds);
        QCOMPARE(partial[0].rect, QRectF(0, 0, 200, 200));
        QCOMPARE(partial[1].rect, QRectF(200, 0, 100, 200));
        // Ties keep the given order.
        const auto tied = calculateTreeMapRects(categoriesOfSizes({10, 20, 10}), 40, bounds);
        QCOMPARE(tied[1].stat.category, allFileCategories()[0]);
        QCOMPARE(tied[2].stat.category, allFileCategories()[2]);
    }

    void folderWorkedExample() {
        const FolderInfo parent = parentOf({10, 60, 30});
        const TreemapLevel level = buildTreemapItems(parent, QRectF(0, 0, 300, 100), 0);
        QCOMPARE(names(level), (QStringList{"1", "2", "0"}));
        // 60 alone is the first column, sized on the whole area; 30 and 10 share the free 120 x 100
        // as a second column, which the strip rule then sizes on the whole width again.
        QCOMPARE(level.items[0].rect, QRectF(0, 0, 180, 100));
        QCOMPARE(level.items[1].rect, QRectF(180, 0, 120, 75));
        QCOMPARE(level.items[2].rect, QRectF(180, 75, 120, 25));
        QVERIFY(!level.files);
    }

    void filesItemAndColours() {
        QList<qint64> sizes;
        for (int i = 0; i < 11; ++i)
            sizes << 100 - i;
        const FolderInfo parent = parentOf(sizes, 95);
        const TreemapLevel level = buildTreemapItems(parent, QRectF(0, 0, 400, 300), 0);
        QCOMPARE(level.items.size(), 12u);
        QVERIFY(level.files);
        QCOMPARE(level.files->totalSize, 95);
        QCOMPARE(level.files->fileCount, 3); // the parent's 14 files less its children's 11
        QCOMPARE(level.files->depth, parent.depth + 1);

        QList<qint64> colors;
        for (const TreemapItem& item : level.items)
            colors << item.colorIndex;
        // Files (95) sorts among the folders, in cyan, without taking a colour step; the 11th
        // folder starts the ten-colour cycle again.
        QCOMPARE(colors, (QList<qint64>{0, 1, 2, 3, 4, 5, 11, 6, 7, 8, 9, 0}));
        QVERIFY(level.items[6].isFiles);
    }

    // Along its strip every item keeps 2 points; across it a strip may be thinner. A leaf stands
    // for itself, in the level's base colour.
    void folderEdges() {
        const QRectF bounds(0, 0, 300, 200);
        for (const auto& [sizes, directFiles, items] :
             {std::tuple{QList<qint64>{0, 0}, qint64(0), std::size_t(0)},
              {QList<qint64>{}, qint64(40), std::size_t(1)},
              {QList<qint64>{1'000'000'000, 1}, qint64(0), std::size_t(2)},
              {QList<qint64>{10, 0, 0}, qint64(0), std::size_t(3)}}) {
            const FolderInfo parent = parentOf(sizes, directFiles);
            const TreemapLevel level = buildTreemapItems(parent, bounds, 4);
            QCOMPARE(level.items.size(), items);
            for (const TreemapItem& item : level.items) {
                QVERIFY(qIsFinite(item.rect.width()) && qIsFinite(item.rect.height()));
                QVERIFY(item.rect.width() >= 2 || item.rect.height() >= 2);
                QVERIFY(bounds.contains(item.rect.topLeft()));
            }
            if (sizes.isEmpty()) {
                QCOMPARE(level.items[0].folder, &parent);
                QCOMPARE(level.items[0].rect, bounds);
                QCOMPARE(level.items[0].colorIndex, 4);
            }
        }
    }

    // Sparse files may each claim nearly 2^63 bytes, and a damaged history a negative size: no
    // chart may lose a cell to a sum that wrapped, or draw one outside its area.
    void hugeSizesKeepEveryChartInItsBounds_data() {
        constexpr qint64 largest = std::numeric_limits<qint64>::max();
        QTest::addColumn<QList<qint64>>("sizes");
        QTest::newRow("two at the largest") << QList<qint64>{largest, largest};
        QTest::newRow("largest beside small ones") << QList<qint64>{largest, 1000, 1};
        QTest::newRow("halves that pass it together")
            << QList<qint64>{largest / 2 + 1, largest / 2 + 1, largest / 2 + 1};
        QTest::newRow("negative beside positive") << QList<qint64>{-5, 100};
    }
    void hugeSizesKeepEveryChartInItsBounds() {
        QFETCH(QList<qint64>, sizes);
        const QRectF bounds(0, 0, 300, 200);
        const auto inBounds = [&](const QRectF& rect) {
            return qIsFinite(rect.width()) && qIsFinite(rect.height()) &&
                   bounds.contains(rect.topLeft());
        };
        const auto positive =
            std::count_if(sizes.begin(), sizes.end(), [](qint64 s) { return s > 0; });
        const qint64 total = std::accumulate(sizes.begin(), sizes.end(), qint64(0), saturatingAdd);

        const FolderInfo parent = parentOf(sizes, sizes.first());
        const TreemapLevel level = buildTreemapItems(parent, bounds, 0);
        QVERIFY(qsizetype(level.items.size()) >= positive);
        for (const TreemapItem& item : level.items)
            QVERIFY(inBounds(item.rect));

        const auto categories = calculateTreeMapRects(categoriesOfSizes(sizes), total, bounds);
        QCOMPARE(qsizetype(categories.size()), sizes.size());
        for (const TreeMapRect& cell : categories)
            QVERIFY(inBounds(cell.rect));

        QVERIFY(folderBarsOf(parent, 10).shownSize >= 0);
        for (const qint64 size : sizes) {
            const double extent = barExtent(size, total, 200, 0);
            QVERIFY(extent >= 0 && extent <= 200);
        }
        const std::vector<qint64> ticks =
            niceAxisTicks(*std::max_element(sizes.begin(), sizes.end()));
        QVERIFY(ticks.size() >= 2 && ticks.size() <= 6);
        QVERIFY(std::adjacent_find(ticks.begin(), ticks.end(), std::greater_equal<>()) ==
                ticks.end());
    }

    void nestingStopsAtTheThirdLevel() {
        // Every folder has two sub-folders four levels down: only levels 0 to 2 are laid out, and
        // only levels 0 and 1 nest.
        FolderInfo leafParent = parentOf({50, 50});
        FolderInfo level2 = folder("l2", 200, 4, {leafParent, leafParent});
        FolderInfo level1 = folder("l1", 400, 8, {level2, level2});
        const FolderInfo root = folder("root", 800, 16, {level1, level1});
        const NestedTreemap treemap = layoutNestedTreemap(root, QRectF(0, 0, 800, 600));

        QList<int> perLevel(3, 0);
        for (const NestedTreemapCell& cell : treemap.cells) {
            ++perLevel[cell.level];
            QCOMPARE(cell.nests, cell.level < 2);
            if (cell.parent >= 0) {
                const NestedTreemapCell& parent = treemap.cells[cell.parent];
                QCOMPARE(parent.level, cell.level - 1);
                QVERIFY(parent.item.rect.contains(cell.item.rect));
                QVERIFY(cell.parent < &cell - treemap.cells.data());
            }
        }
        QCOMPARE(perLevel, (QList<int>{2, 4, 8}));
        // A nested level continues its parent's colour.
        QCOMPARE(treemap.cells[2].item.colorIndex,
                 treemap.cells[treemap.cells[2].parent].item.colorIndex + 1);
    }
};

QTEST_GUILESS_MAIN(ChartGeometryTest)
#include "ChartGeometryTest.moc"
