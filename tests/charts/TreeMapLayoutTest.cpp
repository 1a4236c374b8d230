#include "charts/CategoryTreemapLayout.h"

#include <QTest>

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

// 'h' for a slice off the left of the free area, 'v' for one off its top. The free area is what
// the later cells cover; the last cell fills it whichever way, so it is left out.
QString directions(const std::vector<TreeMapRect>& rects) {
    QString text;
    for (std::size_t i = 0; i + 1 < rects.size(); ++i) {
        QRectF free = rects[i].rect;
        for (std::size_t j = i + 1; j < rects.size(); ++j)
            free |= rects[j].rect;
        text += rects[i].rect.height() == free.height() ? 'h' : 'v';
    }
    return text;
}

} // namespace

class TreeMapLayoutTest : public QObject {
    Q_OBJECT

private slots:
    void workedExample() {
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

    void directionFollowsRemainingCount_data() {
        QTest::addColumn<QList<qint64>>("sizes");
        QTest::addColumn<QRectF>("bounds");
        QTest::addColumn<QString>("directions");
        QTest::newRow("4, wide") << QList<qint64>{40, 30, 20, 10} << QRectF(0, 0, 400, 200)
                                 << "hhv";
        QTest::newRow("5, wide") << QList<qint64>{30, 25, 20, 15, 10} << QRectF(0, 0, 400, 200)
                                 << "hvvh";
        QTest::newRow("square starts vertical")
            << QList<qint64>{50, 30, 20} << QRectF(0, 0, 100, 100) << "vh";
    }
    void directionFollowsRemainingCount() {
        QFETCH(QList<qint64>, sizes);
        QFETCH(QRectF, bounds);
        const qint64 total = std::accumulate(sizes.begin(), sizes.end(), qint64(0));
        QTEST(directions(calculateTreeMapRects(categoriesOfSizes(sizes), total, bounds)),
              "directions");
    }

    void edges() {
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
    }

    void tiesKeepTheGivenOrder() {
        QList<CategoryStats> categories{stat(FileCategory::code, 10), stat(FileCategory::audio, 20),
                                        stat(FileCategory::images, 10)};
        const auto rects = calculateTreeMapRects(categories, 40, QRectF(0, 0, 400, 200));
        QCOMPARE(rects[1].stat.category, FileCategory::code);
        QCOMPARE(rects[2].stat.category, FileCategory::images);
    }
};

QTEST_GUILESS_MAIN(TreeMapLayoutTest)
#include "TreeMapLayoutTest.moc"
