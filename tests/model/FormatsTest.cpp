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

    // Rounded into the next unit; one decimal for MB, two from GB on, a trailing zero dropped.
    void byteCount() {
        for (const auto& [bytes, text] : {std::pair{0LL, "Zero KB"},
                                          {1LL, "1 byte"},
                                          {999LL, "999 bytes"},
                                          {1500LL, "2 KB"},
                                          {999'999LL, "1 MB"},
                                          {1'234'567LL, "1.2 MB"},
                                          {3'000'000LL, "3 MB"},
                                          {1'234'567'890LL, "1.23 GB"},
                                          {std::numeric_limits<qint64>::max(), "9.22 EB"},
                                          {std::numeric_limits<qint64>::min(), "-9.22 EB"}})
            QCOMPARE(format::byteCount(bytes), QString::fromLatin1(text));
    }

    void numbersFollowTheLocale() {
        QCOMPARE(format::count(1'234'567), "1,234,567");
        QCOMPARE(format::count(-1234), "-1,234");
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(format::byteCount(1'234'567), "1,2 MB");
        QCOMPARE(format::count(1'234'567), "1.234.567");
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
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

    // None until past one percent of an estimate above zero; "< 1s" once nothing is left.
    void remainingTime() {
        for (const auto& [files, folders, estimated, elapsed, text] :
             {std::tuple{500, 0, -1, 10.0, ""}, // -1: not known yet
              {500, 0, 0, 10.0, ""},
              {6, 4, 1000, 10.0, ""},
              {7, 4, 1000, 10.0, "14m 59s remaining"},
              {300, 200, 1000, 100.0, "1m 40s remaining"},
              {1500, 20, 1000, 90.0, "< 1s remaining"},
              {500, 0, 1000, 0.0, "< 1s remaining"}}) {
            const auto snapshot =
                progress(files, folders, estimated < 0 ? std::nullopt : std::optional(estimated));
            QCOMPARE(snapshot.formattedRemainingTime(after(elapsed)).value_or(QString()),
                     QString::fromLatin1(text));
        }
    }

    void namesIgnoreTrailingSeparators() {
        for (const auto& [path, cleaned, name, parent] :
             {std::tuple{"/home/ann/Music//", QString("/home/ann/Music"), "Music", "/home/ann"},
              {"/", "/", "/", "/"},
              {"/srv", "/srv", "srv", "/"},
              {"//", "/", "/", "/"},
              {"/a/./b/../c", "/a/c", "c", "/a/./b/.."},
              {"notes.md", QDir::currentPath() + "/notes.md", "notes.md", ""},
              {"", "", "", ""}}) {
            const QString text = QString::fromUtf8(path);
            QCOMPARE(lastPathComponent(text), QString::fromUtf8(name));
            QCOMPARE(cleanRootPath(text), cleaned);
            QCOMPARE(parentFolder(text), QString::fromUtf8(parent));
        }
    }

    // Names that are not UTF-8 go to text and back to the same bytes, and stay apart from each
    // other, through a URL and the command line as well. Beside a real U+FFFD: NameBytesTest.
    void pathsKeepTheirBytes() {
        const QList<QByteArray> names{"caf\xe9/r\xe9sum\xe9", "\xe2\x82", "\xc0\xaf\xed\xb3\xbf",
                                      "\xf0\x9f\x98\x80 #%41?", "\xf4\x90\x80\x80"};
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
