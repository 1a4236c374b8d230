#include "model/Format.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace tessarine;

class FormatsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void byteCount_data() {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << 0LL << "Zero KB";
        QTest::newRow("one") << 1LL << "1 byte";
        QTest::newRow("most bytes") << 999LL << "999 bytes";
        QTest::newRow("one KB") << 1000LL << "1 KB";
        QTest::newRow("KB rounded") << 1500LL << "2 KB";
        QTest::newRow("rounds into MB") << 999'999LL << "1 MB";
        QTest::newRow("MB one decimal") << 1'234'567LL << "1.2 MB";
        QTest::newRow("MB trailing zero dropped") << 3'000'000LL << "3 MB";
        QTest::newRow("GB two decimals") << 1'234'567'890LL << "1.23 GB";
        QTest::newRow("largest") << std::numeric_limits<qint64>::max() << "9.22 EB";
        QTest::newRow("most negative") << std::numeric_limits<qint64>::min() << "-9.22 EB";
    }

    void byteCount() {
        QFETCH(qint64, bytes);
        QFETCH(QString, text);
        QCOMPARE(format::byteCount(bytes), text);
    }

    void numbersFollowTheLocale() {
        QCOMPARE(format::count(1'234'567), "1,234,567");
        QCOMPARE(format::count(-1234), "-1,234");
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(format::byteCount(1'234'567), "1,2 MB");
        QCOMPARE(format::count(1'234'567), "1.234.567");
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void share() {
        QCOMPARE(format::share(1, 3), "33.3%");
        QCOMPARE(format::share(1, 1), "100.0%");
        QCOMPARE(format::share(5, 0.5), "0.0%");
        QCOMPARE(format::share(0, 0), "0.0%");
    }

    void dates() {
        const QDateTime morning(QDate(2026, 11, 23), QTime(9, 41, 7), Qt::LocalTime);
        QCOMPARE(format::absoluteDate(morning).replace(u'\u202f', u' '), "Nov 23, 2026 at 9:41 AM");
        QCOMPARE(format::absoluteDate(QDateTime()), format::missing());
        QCOMPARE(format::clockTime(morning), "09:41:07");
        QCOMPARE(format::clockTime(morning.addSecs(12 * 3600)), "21:41:07");
    }

    void relativeDates_data() {
        QTest::addColumn<qint64>("offset"); // seconds from now
        QTest::addColumn<QString>("text");
        QTest::newRow("seconds") << -30LL << "30 sec. ago";
        QTest::newRow("days") << -3 * 86400LL << "3 days ago";
        QTest::newRow("a year") << -400 * 86400LL << "1 yr. ago";
        QTest::newRow("future") << 2 * 3600LL << "in 2 hr.";
    }

    void relativeDates() {
        QFETCH(qint64, offset);
        QFETCH(QString, text);
        const QDateTime now(QDate(2025, 6, 15), QTime(12, 0), Qt::UTC);
        QCOMPARE(format::relativeDate(now.addSecs(offset), now), text);
    }
};

QTEST_APPLESS_MAIN(FormatsTest)
#include "FormatsTest.moc"
