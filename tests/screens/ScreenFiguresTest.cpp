#include "screens/dashboard/SummaryFigures.h"
#include "screens/scanning/ScanFigures.h"
#include "screens/scanning/ScanStatus.h"

#include <QLocale>
#include <QTest>

using namespace tessarine;

namespace {

QStringList values(const std::vector<Figure>& figures) {
    QStringList result;
    for (const Figure& figure : figures)
        result.append(figure.value);
    return result;
}

ScanProgress progress(qint64 files, qint64 folders, qint64 bytes) {
    ScanProgress scan;
    scan.phase = ScanPhase::scanning;
    scan.filesScanned = files;
    scan.foldersScanned = folders;
    scan.bytesScanned = bytes;
    scan.startTime = QDateTime(QDate(2026, 3, 14), QTime(9, 0), Qt::UTC);
    return scan;
}

} // namespace

class ScreenFiguresTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void performanceDividesTheCountersOnceThereIsSomethingToDivide() {
        QCOMPARE(values(performanceFigures({}, 0, 0)), (QStringList{"0", "0 B", "—", "—"}));
        QCOMPARE(values(performanceFigures(progress(10, 0, 500), 0, 0))[3], QStringLiteral("—"));
        // 7 files of 3,000,000 bytes in all: the average is an integer division (428,571 bytes).
        const auto figures = performanceFigures(progress(7, 2, 3'000'000), 1234.6, 2 * 1048576);
        QCOMPARE(values(figures), (QStringList{"1235", "2.0 MB", "429 KB", "3.5"}));
    }

    void statisticsSumTheItemsAndWaitForAnEstimate() {
        ScanProgress scan = progress(12'345, 1'000, 1'500'000);
        const QDateTime now = scan.startTime.addSecs(125);
        QCOMPARE(values(statisticsFigures(scan, now)),
                 (QStringList{"12,345", "1,000", "13,345", "1.5 MB", "2m 5s", "Calculating..."}));

        // A quarter done after 100 s leaves 300 s.
        scan.estimatedTotalFiles = 4 * (12'345 + 1'000);
        QCOMPARE(statisticsFigures(scan, scan.startTime.addSecs(100))[5].value,
                 QStringLiteral("5m 0s remaining"));
    }

    void completedFractionNeedsAnEstimateAndNeverPassesOne_data() {
        QTest::addColumn<qint64>("files");
        QTest::addColumn<qint64>("folders");
        QTest::addColumn<qint64>("estimate"); // negative: none
        QTest::addColumn<double>("fraction"); // negative: no bar
        QTest::newRow("no estimate") << qint64(5) << qint64(1) << qint64(-1) << -1.0;
        QTest::newRow("zero estimate") << qint64(5) << qint64(1) << qint64(0) << -1.0;
        QTest::newRow("nothing done") << qint64(0) << qint64(0) << qint64(10) << 0.0;
        QTest::newRow("folders count as done") << qint64(3) << qint64(2) << qint64(20) << 0.25;
        QTest::newRow("estimate overtaken") << qint64(90) << qint64(30) << qint64(100) << 1.0;
    }

    void completedFractionNeedsAnEstimateAndNeverPassesOne() {
        QFETCH(qint64, files);
        QFETCH(qint64, folders);
        QFETCH(qint64, estimate);
        QFETCH(double, fraction);
        ScanProgress scan = progress(files, folders, 0);
        if (estimate >= 0)
            scan.estimatedTotalFiles = estimate;
        const auto result = completedFraction(scan);
        QCOMPARE(result.has_value(), fraction >= 0);
        if (result)
            QCOMPARE(*result, fraction);
    }

    void statusFollowsTheSnapshotAndTheRates() {
        ScanProgress scan = progress(1'200, 300, 5'000'000);
        scan.phase = ScanPhase::analyzing;
        scan.currentPath = QStringLiteral("/a/b/c/d/e/f/g/report.pdf");
        scan.estimatedTotalFiles = 3'000;
        ScanRateMeter rates;
        rates.tick(scan);
        const ScanStatus status = scanStatus(scan, rates, scan.startTime.addSecs(30));
        QCOMPARE((QStringList{status.files, status.folders, status.dataScanned, status.fileRate,
                              status.elapsed, status.throughput, status.remaining}),
                 (QStringList{"1,200", "300", "5 MB", "1200/s", "30s", "4.8 MB", "30s remaining"}));
    }

    void rateMeterMeasuresRawDifferencesFromZero() {
        ScanRateMeter meter;
        meter.tick(progress(500, 1, 4096));
        QCOMPARE(meter.filesPerSecond(), 500.0);
        QCOMPARE(meter.bytesPerSecond(), qint64(4096));
        meter.tick(progress(800, 9, 5120));
        QCOMPARE(meter.filesPerSecond(), 300.0);
        QCOMPARE(meter.bytesPerSecond(), qint64(1024));
        meter.tick(progress(800, 12, 5120));
        QCOMPARE(meter.filesPerSecond(), 0.0);
        QCOMPARE(meter.bytesPerSecond(), qint64(0));
    }

    void summaryCardsFormatSizesCountsAndPlainDepths() {
        const auto figures = summaryFigures({2'500'000'000, 1'234'567, 4'321, 12'345});
        QCOMPARE(values(figures), (QStringList{"2.5 GB", "1,234,567", "4,321", "12345"}));
    }
};

QTEST_GUILESS_MAIN(ScreenFiguresTest)
#include "ScreenFiguresTest.moc"
