#include "model/ScanProgress.h"

#include <QTest>

using namespace tessarine;

namespace {

const QDateTime start(QDate(2025, 6, 1), QTime(12, 0), Qt::UTC);

QDateTime after(double seconds) {
    return start.addMSecs(qint64(seconds * 1000));
}

ScanProgress progress(qint64 files, qint64 folders, std::optional<qint64> estimated) {
    ScanProgress snapshot;
    snapshot.phase = ScanPhase::analyzing;
    snapshot.filesScanned = files;
    snapshot.foldersScanned = folders;
    snapshot.startTime = start;
    snapshot.estimatedTotalFiles = estimated;
    return snapshot;
}

} // namespace

class ProgressTest : public QObject {
    Q_OBJECT

private slots:
    void elapsedTime_data() {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("just started") << 0.0 << "< 1s";
        QTest::newRow("clock behind the start") << -5.0 << "< 1s";
        QTest::newRow("rounds up to 60s") << 59.6 << "60s";
        QTest::newRow("one minute") << 60.0 << "1m 0s";
        QTest::newRow("truncated") << 61.9 << "1m 1s";
    }

    void elapsedTime() {
        QFETCH(double, seconds);
        QFETCH(QString, text);
        QCOMPARE(progress(0, 0, std::nullopt).formattedElapsedTime(after(seconds)), text);
    }

    void remainingTime_data() {
        QTest::addColumn<qint64>("files");
        QTest::addColumn<qint64>("folders");
        QTest::addColumn<qint64>("estimated"); // -1: not known yet
        QTest::addColumn<double>("elapsed");
        QTest::addColumn<QString>("text"); // empty: no text
        QTest::newRow("total unknown") << 500LL << 0LL << -1LL << 10.0 << "";
        QTest::newRow("total zero") << 500LL << 0LL << 0LL << 10.0 << "";
        QTest::newRow("exactly one percent") << 6LL << 4LL << 1000LL << 10.0 << "";
        QTest::newRow("just past one percent")
            << 7LL << 4LL << 1000LL << 10.0 << "14m 59s remaining";
        QTest::newRow("half done") << 300LL << 200LL << 1000LL << 100.0 << "1m 40s remaining";
        QTest::newRow("seconds") << 900LL << 0LL << 1000LL << 90.0 << "10s remaining";
        QTest::newRow("past the estimate") << 1500LL << 20LL << 1000LL << 90.0 << "< 1s remaining";
        QTest::newRow("at the start") << 500LL << 0LL << 1000LL << 0.0 << "< 1s remaining";
    }

    void remainingTime() {
        QFETCH(qint64, files);
        QFETCH(qint64, folders);
        QFETCH(qint64, estimated);
        QFETCH(double, elapsed);
        QFETCH(QString, text);
        const auto snapshot =
            progress(files, folders, estimated < 0 ? std::nullopt : std::optional(estimated));
        const std::optional<QString> remaining = snapshot.formattedRemainingTime(after(elapsed));
        QCOMPARE(remaining.value_or(QString()), text);
    }
};

QTEST_APPLESS_MAIN(ProgressTest)
#include "ProgressTest.moc"
