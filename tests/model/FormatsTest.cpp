#include "model/Format.h"
#include "model/PathBytes.h"
#include "model/PathNames.h"
#include "model/Records.h"
#include "model/ScanProgress.h"

#include <QDir>
#include <QLocale>
#include <QTest>

#include <limits>

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
        // Unknown, as a file without a modification time or an import without a date is.
        for (const QDateTime& unknown : {QDateTime(), distantPast()}) {
            QCOMPARE(format::absoluteDate(unknown), format::missing());
            QCOMPARE(format::relativeDate(unknown, morning), format::missing());
        }
        QCOMPARE(format::clockTime(morning), "09:41:07");
        QCOMPARE(format::clockTime(morning.addSecs(12 * 3600)), "21:41:07");
        const QDateTime now(QDate(2025, 6, 15), QTime(12, 0), Qt::UTC);
        QCOMPARE(format::relativeDate(now.addSecs(-30), now), "30 sec. ago");
        QCOMPARE(format::relativeDate(now.addDays(-3), now), "3 days ago");
        QCOMPARE(format::relativeDate(now.addDays(-400), now), "1 yr. ago");
        QCOMPARE(format::relativeDate(now.addSecs(2 * 3600), now), "in 2 hr.");

        // Elapsed time: none while the clock is behind the start, rounded up to 60s below a minute.
        const ScanProgress started = progress(0, 0, std::nullopt);
        for (const auto& [seconds, text] : {std::pair{0.0, "< 1s"},
                                            {-5.0, "< 1s"},
                                            {59.6, "60s"},
                                            {60.0, "1m 0s"},
                                            {61.9, "1m 1s"}})
            QCOMPARE(started.formattedElapsedTime(after(seconds)), QString::fromLatin1(text));
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

    void namesIgnoreTrailingSeparators_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("cleaned");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("parent");
        const auto row = [](const char* tag, const char* path, const QString& cleaned,
                            const char* name, const char* parent) {
            QTest::newRow(tag) << QString::fromUtf8(path) << cleaned << QString::fromUtf8(name)
                               << QString::fromUtf8(parent);
        };
        row("trailing separators", "/home/ann/Music//", "/home/ann/Music", "Music", "/home/ann");
        row("root", "/", "/", "/", "/");
        row("top level", "/srv", "/srv", "srv", "/");
        row("separators only", "//", "/", "/", "/");
        row("dot segments", "/a/./b/../c", "/a/c", "c", "/a/./b/..");
        row("relative", "notes.md", QDir::currentPath() + "/notes.md", "notes.md", "");
        row("empty", "", "", "", "");
    }

    void namesIgnoreTrailingSeparators() {
        QFETCH(QString, path);
        QFETCH(QString, cleaned);
        QFETCH(QString, name);
        QFETCH(QString, parent);
        QCOMPARE(lastPathComponent(path), name);
        QCOMPARE(cleanRootPath(path), cleaned);
        QCOMPARE(parentFolder(path), parent);
    }

    // Names that are not UTF-8 go to text and back to the same bytes, and stay apart from each
    // other and from a real U+FFFD, through a URL and the command line as well.
    void pathsKeepTheirBytes() {
        const QList<QByteArray> names{"x\xff.txt",
                                      "x\xfe.txt",
                                      "x\xef\xbf\xbd.txt",
                                      "caf\xe9/r\xe9sum\xe9",
                                      "\xe2\x82",
                                      "\xc0\xaf\xed\xb3\xbf",
                                      "\xf0\x9f\x98\x80 #%41?",
                                      "\xf4\x90\x80\x80"};
        QStringList texts;
        QList<const char*> arguments;
        for (const QByteArray& name : names) {
            const QString text = pathFromBytes(name);
            texts.append(text);
            arguments.append(name.constData());
            QCOMPARE(pathToBytes(text), name);
            QCOMPARE(pathFromUrl(urlFromPath(u'/' + text)), u'/' + text);
        }
        QCOMPARE(QSet<QString>(texts.begin(), texts.end()).size(), names.size());
        QCOMPARE(argumentsFromBytes(int(arguments.size()), arguments.data()), texts);
        QCOMPARE(pathFromBytes("\xe2\x82\xac\xff"), QStringLiteral("\u20ac") + QChar(0xDCFF));
        QCOMPARE(pathForDisplay(pathFromBytes("x\xff\xf0\x9f\x98\x80")),
                 QStringLiteral("x\uFFFD\U0001F600"));
    }
};

QTEST_APPLESS_MAIN(FormatsTest)
#include "FormatsTest.moc"
