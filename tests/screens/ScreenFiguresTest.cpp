#include "screens/common/FirstRowsModel.h"
#include "screens/scanning/ActivityLogModel.h"
#include "screens/scanning/ScanFigures.h"
#include "screens/scanning/ScanPaths.h"
#include "screens/scanning/ScanPhaseDisplay.h"
#include "screens/scanning/ScanStatus.h"
#include "screens/scanning/Throughput.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QSignalSpy>
#include <QStringListModel>
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

QStringList column(const QAbstractItemModel& model, int role) {
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row)
        result.append(model.index(row, 0).data(role).toString());
    return result;
}

} // namespace

class ScreenFiguresTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    // Before the first snapshot: tst_LandingAndScanning's placeholders.
    void performanceDividesTheCountersOnceThereIsSomethingToDivide() {
        QCOMPARE(values(performanceFigures(progress(10, 0, 500), 0, 0))[3], QStringLiteral("—"));
        // 7 files of 3,000,000 bytes in all: the average is an integer division (428,571 bytes).
        const auto figures = performanceFigures(progress(7, 2, 3'000'000), 1234.6, 2 * 1048576);
        QCOMPARE(values(figures), (QStringList{"1235", "2.0 MB", "429 KB", "3.5"}));
    }

    // With an estimate: tst_LandingAndScanning's live snapshot.
    void statisticsSumTheItemsAndWaitForAnEstimate() {
        const ScanProgress scan = progress(12'345, 1'000, 1'500'000);
        QCOMPARE(values(statisticsFigures(scan, scan.startTime.addSecs(125))),
                 (QStringList{"12,345", "1,000", "13,345", "1.5 MB", "2m 5s", "Calculating..."}));
    }

    // Files and folders done of the estimate; no bar without an estimate above zero.
    void completedFractionNeedsAnEstimateAndNeverPassesOne() {
        for (const auto& [files, folders, estimate, fraction] :
             {std::tuple{5, 1, -1, -1.0}, // negatives: no estimate, no bar
              {5, 1, 0, -1.0},
              {0, 0, 10, 0.0},
              {3, 2, 20, 0.25},
              {90, 30, 100, 1.0}}) {
            ScanProgress scan = progress(files, folders, 0);
            if (estimate >= 0)
                scan.estimatedTotalFiles = estimate;
            const auto result = completedFraction(scan);
            QCOMPARE(result.has_value(), fraction >= 0);
            if (result)
                QCOMPARE(*result, fraction);
        }
    }

    void statusFollowsTheSnapshotAndTheRates() {
        ScanProgress scan = progress(1'200, 300, 5'000'000);
        scan.phase = ScanPhase::analyzing;
        scan.currentPath = QStringLiteral("/a/b/c/d/e/f/g/report.pdf");
        scan.estimatedTotalFiles = 3'000;
        ScanRateMeter rates;
        rates.tick(scan);
        const ScanStatus status = scanStatus(scan, rates, scan.startTime.addSecs(30));
        QCOMPARE((QStringList{status.dataScanned, status.fileRate, status.elapsed,
                              status.throughput, status.remaining}),
                 (QStringList{"5 MB", "1200/s", "30s", "4.8 MB", "30s remaining"}));
        QVERIFY(!status.waiting);

        // A folder that keeps the walk waiting takes the description's place.
        scan.unansweredFolder = QStringLiteral("/mnt/nfs/photos");
        const ScanStatus waiting = scanStatus(scan, rates, scan.startTime.addSecs(30));
        QCOMPARE(waiting.phaseDescription, "Waiting for photos to respond...");
        QVERIFY(waiting.waiting);

        // Later ticks measure the raw differences since the one before.
        for (const auto& [files, bytes, rate] :
             {std::tuple{1'500, 5'001'024, 300.0}, {1'500, 5'001'024, 0.0}}) {
            rates.tick(progress(files, 310, bytes));
            QCOMPARE(rates.filesPerSecond(), rate);
            QCOMPARE(rates.bytesPerSecond(), qint64(rate == 0 ? 0 : 1024));
        }
    }

    // Rates are printf-formatted like the screen's other live figures ("%.0f", "%.1f"), so they
    // all keep the full stop whatever the locale.
    void throughputSwitchesUnitAtEachBinaryStep() {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QStringList formatted;
        for (const qint64 bytesPerSecond :
             {1023LL, 1024LL, 1048575LL, 5LL * 1073741824 / 2, -300LL})
            formatted.append(formatThroughput(bytesPerSecond));
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(formatted, (QStringList{"1023 B", "1.0 KB", "1024.0 KB", "2.50 GB", "-300 B"}));
    }

    // The location's deepest six pieces; a path's text tells a folder from a file.
    void locationCrumbsAndActivityEntries() {
        for (const auto& [path, crumbs] : {std::pair{"/", QStringList{}},
                                           {"//Users//ann/", {"Users", "ann"}},
                                           {"/a/b/c/d/e/f/g", {"b", "c", "d", "e", "f", "g"}}})
            QCOMPARE(locationCrumbs(QString::fromLatin1(path)), crumbs);
        for (const auto& [path, folder] : {std::pair{"/x/a.txt", false},
                                           {"/x/README", true},
                                           {"/x/y/", true},
                                           {"/x/v1.2/", true},
                                           {"/", true}})
            QVERIFY2(looksLikeFolder(QString::fromLatin1(path)) == folder, path);
    }

    // Each phase's steps: those before it done, its own current; at the end, all done or none.
    void phaseStepsFollowTheCurrentPhase() {
        for (const auto& [phase, completedSteps, currentStep] :
             {std::tuple{ScanPhase::initializing, 0, 0},
              {ScanPhase::finalizing, 4, 4},
              {ScanPhase::complete, 5, -1},
              {ScanPhase::cancelled, 0, -1}}) {
            const auto steps = phaseSteps(phase);
            for (int i = 0; i < int(steps.size()); ++i) {
                QCOMPARE(steps[std::size_t(i)].phase, static_cast<ScanPhase>(i));
                QCOMPARE(steps[std::size_t(i)].completed, i < completedSteps);
                QCOMPARE(steps[std::size_t(i)].current, i == currentStep);
            }
        }
    }

    // The hundred newest first; a path reported again is a new line only after a pause.
    void activityLogKeepsTheHundredNewestChanges() {
        ActivityLogModel log;
        QAbstractItemModelTester tester(&log);
        QSignalSpy countChanges(&log, &ActivityLogModel::countChanged);
        log.setCurrentPath(QString());
        QCOMPARE(log.rowCount(), 0);
        const QDateTime afternoon(QDate(2026, 3, 14), QTime(15, 9, 26));
        log.setCurrentPath(QStringLiteral("/x/README"), afternoon);
        log.setCurrentPath(QStringLiteral("/x/README"), afternoon);
        QCOMPARE(log.rowCount(), 1);
        log.setCurrentPath(QStringLiteral("/x/a.txt"), afternoon.addSecs(1));
        QCOMPARE(log.index(0).data(ActivityLogModel::TimestampRole).toString(), "15:09:27");
        log.setCurrentPath(QString());
        log.setCurrentPath(QStringLiteral("/x/a.txt"));
        QCOMPARE(log.rowCount(), 3);

        for (int i = 1; i <= 130; ++i)
            log.setCurrentPath(QStringLiteral("/scan/file%1.dat").arg(i));
        QCOMPARE(log.rowCount(), ActivityLogModel::capacity);
        QCOMPARE(countChanges.count(), ActivityLogModel::capacity);
        const QStringList names = column(log, ActivityLogModel::NameRole);
        QCOMPARE(names.first(), QStringLiteral("file130.dat"));
        QCOMPARE(names.last(), QStringLiteral("file31.dat"));
    }

    void firstRowsFollowRowsEnteringAndLeavingTheTop() {
        QStringListModel source({"c", "b", "a"});
        FirstRowsModel first;
        QAbstractItemModelTester tester(&first);
        first.setLimit(5);
        first.setSourceModel(&source);
        QCOMPARE(column(first, Qt::DisplayRole), (QStringList{"c", "b", "a"}));

        for (const char* newest : {"d", "e", "f", "g"}) {
            source.insertRows(0, 1);
            source.setData(source.index(0), QString::fromLatin1(newest));
        }
        QCOMPARE(column(first, Qt::DisplayRole), (QStringList{"g", "f", "e", "d", "c"}));
        QCOMPARE(first.count(), 5);

        source.removeRows(0, 2);
        QCOMPARE(column(first, Qt::DisplayRole), (QStringList{"e", "d", "c", "b", "a"}));
        source.removeRows(1, 4);
        QCOMPARE(column(first, Qt::DisplayRole), (QStringList{"e"}));

        QSignalSpy countChanges(&first, &FirstRowsModel::countChanged);
        first.setLimit(0);
        QCOMPARE(first.count(), 0);
        QVERIFY(!countChanges.isEmpty());
    }
};

QTEST_GUILESS_MAIN(ScreenFiguresTest)
#include "ScreenFiguresTest.moc"
