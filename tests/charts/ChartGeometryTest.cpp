#include "charts/AxisTicks.h"
#include "charts/BarExtent.h"
#include "charts/CatmullRomCurve.h"
#include "charts/SlicePicking.h"
#include "charts/TreemapCellStyle.h"

#include <QTest>

#include <limits>

using namespace tessarine;

class ChartGeometryTest : public QObject {
    Q_OBJECT

private slots:
    void axisTicks_data() {
        QTest::addColumn<qint64>("maxValue");
        QTest::addColumn<QList<qint64>>("ticks");
        QTest::newRow("nothing") << qint64(0) << QList<qint64>{0, 1};
        QTest::newRow("exact end") << qint64(100) << QList<qint64>{0, 50, 100};
        QTest::newRow("just over") << qint64(101) << QList<qint64>{0, 50, 100, 150};
        QTest::newRow("4.3 GB") << qint64(4'300'000'000)
                                << QList<qint64>{0, 2'000'000'000, 4'000'000'000, 6'000'000'000};
    }
    void axisTicks() {
        QFETCH(qint64, maxValue);
        const std::vector<qint64> ticks = niceAxisTicks(maxValue);
        QTEST(QList<qint64>(ticks.begin(), ticks.end()), "ticks");
    }

    void axisTicksNearTheLargestValue() {
        const std::vector<qint64> ticks = niceAxisTicks(std::numeric_limits<qint64>::max());
        QVERIFY(ticks.size() >= 2 && ticks.size() <= 6);
        for (std::size_t i = 1; i < ticks.size(); ++i)
            QVERIFY(ticks[i] > ticks[i - 1]);
    }

    void barExtents_data() {
        QTest::addColumn<qint64>("value");
        QTest::addColumn<qint64>("whole");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("extent");
        QTest::newRow("share") << qint64(25) << qint64(100) << 0.0 << 50.0;
        QTest::newRow("tiny extension")
            << qint64(1) << qint64(1'000'000) << extensionBarMinimum << 4.0;
        QTest::newRow("no total") << qint64(5) << qint64(0) << extensionBarMinimum << 4.0;
    }
    void barExtents() {
        QFETCH(qint64, value);
        QFETCH(qint64, whole);
        QFETCH(double, minimum);
        QTEST(barExtent(value, whole, 200, minimum), "extent");
    }

    void cellFramesKeepTheirGap() {
        CategoryStats images;
        images.category = FileCategory::images;
        CategoryStats code;
        code.category = FileCategory::code;
        const std::vector<TreeMapRect> rects{{images, QRectF(0, 0, 200, 100)},
                                             {code, QRectF(200, 0, 1, 100)}};
        const QList<TreemapCell> cells = categoryTreemapCells(rects, 0, FileCategory::code);
        QCOMPARE(cells[0].rect, QRectF(1, 1, 198, 98));
        QCOMPARE(cells[0].border.width, 0.0);
        // A 1-point sliver is still drawn 1 point wide, on its own centre, and shows the selection.
        QCOMPARE(cells[1].rect, QRectF(200, 1, 1, 98));
        QCOMPARE(cells[1].border.color, QColor(Qt::white));

        FolderInfo folder;
        folder.totalSize = 10;
        const NestedTreemap treemap = layoutNestedTreemap(folder, QRectF(0, 0, 1.5, 50));
        QCOMPARE(folderTreemapCells(treemap, 10)[0].rect.width(), 0.0);
    }

    void slicePicking_data() {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("width");
        QTest::addColumn<int>("index"); // -1 for none
        QTest::newRow("left edge") << 0.0 << 300.0 << 0;
        QTest::newRow("inside a slice") << 150.0 << 300.0 << 1;
        QTest::newRow("last point") << 299.9 << 300.0 << 2;
        QTest::newRow("right edge") << 300.0 << 300.0 << -1;
        QTest::newRow("just left") << -0.5 << 300.0 << 0;
        QTest::newRow("far left") << -150.0 << 300.0 << -1;
        QTest::newRow("no width") << 0.0 << 0.0 << -1;
    }
    void slicePicking() {
        QFETCH(double, x);
        QFETCH(double, width);
        QTEST(int(sliceAt(x, width, 3).value_or(-1)), "index");
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
    }

    void curveEdges() {
        QVERIFY(catmullRomCurve(std::vector<QPointF>{}).empty());
        QVERIFY(catmullRomCurve(std::vector<QPointF>{{1, 1}}).empty());
        const std::vector<QPointF> line{{0, 0}, {10, 10}};
        const auto segments = catmullRomCurve(line);
        QCOMPARE(segments.size(), 1u);
        for (const QPointF& control : {segments[0].control1, segments[0].control2})
            QCOMPARE(control.x(), control.y());
        // Repeated points (two scans of the same size on the same date) give no division by 0.
        const std::vector<QPointF> repeated{{0, 0}, {0, 0}, {5, 5}};
        for (const CubicSegment& segment : catmullRomCurve(repeated))
            QVERIFY(qIsFinite(segment.control1.x()) && qIsFinite(segment.control2.y()));
    }
};

QTEST_GUILESS_MAIN(ChartGeometryTest)
#include "ChartGeometryTest.moc"
