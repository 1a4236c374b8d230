#include "screens/common/FirstRowsModel.h"
#include "screens/scanning/ActivityLogModel.h"
#include "screens/scanning/PhaseStepsModel.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>

using namespace tessarine;

namespace {

QStringList column(const QAbstractItemModel& model, int role) {
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row)
        result.append(model.index(row, 0).data(role).toString());
    return result;
}

} // namespace

class ScreenModelsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void activityLogKeepsTheHundredNewestFirst() {
        ActivityLogModel log;
        QAbstractItemModelTester tester(&log);
        QSignalSpy countChanges(&log, &ActivityLogModel::countChanged);
        for (int i = 1; i <= 130; ++i)
            log.setCurrentPath(QStringLiteral("/scan/file%1.dat").arg(i));

        QCOMPARE(log.rowCount(), ActivityLogModel::capacity);
        QCOMPARE(countChanges.count(), ActivityLogModel::capacity);
        const QStringList names = column(log, ActivityLogModel::NameRole);
        QCOMPARE(names.first(), QStringLiteral("file130.dat"));
        QCOMPARE(names.last(), QStringLiteral("file31.dat"));
    }

    void activityLogRecordsChangesToAPathAndStampsEachEntry() {
        ActivityLogModel log;
        log.setCurrentPath(QString());
        QCOMPARE(log.rowCount(), 0);

        const QDateTime afternoon(QDate(2026, 3, 14), QTime(15, 9, 26));
        log.setCurrentPath(QStringLiteral("/x/README"), afternoon);
        log.setCurrentPath(QStringLiteral("/x/README"), afternoon);
        QCOMPARE(log.rowCount(), 1);
        log.setCurrentPath(QStringLiteral("/x/a.txt"), afternoon.addSecs(1));
        const QModelIndex newest = log.index(0);
        QCOMPARE(newest.data(ActivityLogModel::TimestampRole).toString(),
                 QStringLiteral("15:09:27"));

        // The same path reported again after a pause between items is a new line.
        log.setCurrentPath(QString());
        log.setCurrentPath(QStringLiteral("/x/a.txt"));
        QCOMPARE(log.rowCount(), 3);
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

    void phaseStepsFollowThePhase() {
        PhaseStepsModel steps;
        QAbstractItemModelTester tester(&steps);
        steps.setPhase(ScanPhase::analyzing);
        QCOMPARE(column(steps, PhaseStepsModel::CompletedRole),
                 (QStringList{"true", "true", "false", "false", "false"}));
    }
};

QTEST_GUILESS_MAIN(ScreenModelsTest)
#include "ScreenModelsTest.moc"
