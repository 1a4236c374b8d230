// The texts a person reads on the terminal, checked without a terminal.

#include "HistoryTable.h"
#include "ProgressLine.h"
#include "ProgressText.h"

#include "model/ScanProgress.h"

#include <QLocale>
#include <QTest>

using namespace tessarine;
using namespace tessarine::cli;

class CliTextsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void scanLineShowsWhatIsKnown() {
        ProgressText<ScanProgress> text;
        ScanProgress discovery{ScanPhase::scanning, 4000, 1000, "/x", 0, m_start, std::nullopt};
        // No rate before the phase has run a while, no bytes while discovery reads none.
        QCOMPARE(text.describe(discovery, m_start.addSecs(1)), "Discovering files...  5,000 items");
        discovery.filesScanned = 8000;
        QCOMPARE(text.describe(discovery, m_start.addSecs(3)),
                 "Discovering files...  9,000 items  2,000 items/s");

        // Analysis counts from zero again, so its rate starts afresh.
        ScanProgress analysis{ScanPhase::analyzing, 0, 0, "/x", 0, m_start, 10000};
        QCOMPARE(text.describe(analysis, m_start.addSecs(3)),
                 "Analyzing files...  0 / 10,000 items");
        analysis.filesScanned = 4500;
        analysis.foldersScanned = 500;
        analysis.bytesScanned = 1'500'000;
        QCOMPARE(text.describe(analysis, m_start.addSecs(5)),
                 "Analyzing files...  5,000 / 10,000 items  1.5 MB  2,500 items/s  5s remaining");
    }

    void linesFitTheTerminal() {
        QCOMPARE(fitToWidth("short", 80), "short");
        QCOMPARE(fitToWidth("exactly", 8), "exactly");
        // One column stays free so the line never wraps.
        QCOMPARE(fitToWidth("exactly", 7), "exactl");
        QCOMPARE(fitToWidth("anything", 0), "");
        // A character outside the basic plane is never cut in half.
        const QString emoji = QString::fromUtf8("ab\U0001F600");
        QCOMPARE(fitToWidth(emoji, 4), "ab");
        QCOMPARE(fitToWidth(emoji, 5), emoji);
    }

    void historyTableIsAlignedAndSafe() {
        AnalysisResult small;
        small.scanDate = m_start;
        small.rootPath = "/home/a\nb\033[2J";
        small.totalSize = 999;
        small.fileCount = 3;
        AnalysisResult large = small;
        large.id = QUuid::createUuid();
        large.rootPath = "/srv/much/longer/path";
        large.totalSize = 1'230'000'000;
        large.fileCount = 1'234'567;

        const QStringList lines = historyTable({large, small}).split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines[3], QString());
        // Control characters cannot break the line or reach the terminal.
        QVERIFY(lines[2].contains("/home/a\\nb\\x1B[2J "));
        const qsizetype idColumn = lines[0].indexOf("ID");
        QCOMPARE(lines[1].indexOf(large.id.toString(QUuid::WithoutBraces).toUpper()), idColumn);
        QCOMPARE(lines[2].indexOf(small.id.toString(QUuid::WithoutBraces).toUpper()), idColumn);
        // Figures are right-aligned: their last digits share a column.
        const qsizetype filesEnd = lines[0].indexOf("Files") + 5;
        QCOMPARE(lines[1].indexOf("1,234,567") + 9, filesEnd);
        QCOMPARE(lines[2].indexOf(" 3 ") + 2, filesEnd);
        QVERIFY(lines[1].contains("1.23 GB"));
        QVERIFY(!lines[0].endsWith(' '));
    }

private:
    const QDateTime m_start = QDateTime(QDate(2024, 3, 5), QTime(14, 0), Qt::UTC);
};

QTEST_GUILESS_MAIN(CliTextsTest)
#include "CliTextsTest.moc"
