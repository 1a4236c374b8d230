#include "CliRun.h"
#include "FileTrees.h"
#include "HistoryTable.h"
#include "ProgressLine.h"
#include "ProgressText.h"
#include "StallingMount.h"
#include "model/ScanProgress.h"
#include "model/ScanSummary.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;
using namespace tessarine::cli;
using namespace tessarine::testing;

namespace {

// What a terminal would act on: escape sequences, bells, carriage returns.
bool holdsRawControlCharacters(const QByteArray& text) {
    return std::any_of(text.begin(), text.end(), [](char byte) {
        return (byte >= 0 && byte < 0x20 && byte != '\n') || byte == 0x7f;
    });
}

const QString escapeName = QStringLiteral("\x1b]0;owned\x07\x1b[2J");
const QString escapeShown = QStringLiteral("\\x1B]0;owned\\x07\\x1B[2J");

} // namespace

class CliCommandLineTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        writeFolders(m_folder.path(), 100, 20);
    }

    void init() {
        QFile::remove(historyDirectory());
        QVERIFY(QDir(historyDirectory()).removeRecursively());
        QVERIFY(QDir().mkpath(historyDirectory()));
    }

    // Help on standard output with success; bad usage on standard error, with the help, and 2.
    void usage_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("problem"); // empty: help was asked for
        QTest::newRow("--help") << QStringList{"--help"} << QString();
        QTest::newRow("scan --help") << QStringList{"scan", "/nowhere", "--help"} << QString();
        QTest::newRow("history -h") << QStringList{"history", "-h"} << QString();
        QTest::newRow("nothing") << QStringList{} << "Missing command";
        QTest::newRow("unknown command")
            << QStringList{"frobnicate"} << "Unknown command: frobnicate";
        QTest::newRow("scan without folder")
            << QStringList{"scan"} << "scan needs exactly one FOLDER";
        QTest::newRow("unknown option")
            << QStringList{"scan", "--fast", "/a"} << "Unknown option: --fast";
        QTest::newRow("history with a folder") << QStringList{"history", "/a"} << "history takes";
    }

    void usage() {
        QFETCH(QStringList, arguments);
        QFETCH(QString, problem);
        const CliRun run = runCli(arguments);
        if (problem.isEmpty()) {
            QCOMPARE(run.exitCode, 0);
            QVERIFY(run.output.startsWith("Usage:\n"));
            for (const char* command :
                 {"scan FOLDER", "tree FOLDER", "history [--json]", "delete ID"})
                QVERIFY2(run.output.contains(command), command);
            QCOMPARE(run.errors, QByteArray());
            return;
        }
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.output, QByteArray());
        QVERIFY2(run.errorText().startsWith(problem), qPrintable(run.errorText()));
        QVERIFY(run.errors.contains("\nUsage:\n"));
    }

    void doubleDashEndsTheOptions() {
        // A folder may be named like an option; after "--" it is a folder, even "--help".
        const CliRun run = runCli({"scan", "--", "--help"}, {.workingDirectory = QDir::tempPath()});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.errorText(),
                 QStringLiteral("Cannot access directory: ") + QDir::tempPath() + "/--help\n");
    }

    // Ctrl-C during the long-running commands: a clean stop with the cancellation's own text and
    // the status a shell gives an interrupted job, also while a folder does not answer.
    void ctrlCCancels_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("stuck");
        QTest::addColumn<QString>("message");
        for (const bool stuck : {false, true}) {
            const char* where = stuck ? " of a folder that does not answer" : "";
            QTest::addRow("scan%s", where) << "scan" << stuck << "Scan was cancelled\n";
            QTest::addRow("tree%s", where)
                << "tree" << stuck << "Folder tree building was cancelled\n";
        }
    }

    void ctrlCCancels() {
        QFETCH(QString, command);
        QFETCH(bool, stuck);
        QFETCH(QString, message);
        std::optional<StallingMount> mount;
        if (stuck) {
            mount.emplace();
            SKIP_WITHOUT_FUSE(*mount);
        }
        const auto run = stuck ? runCliInterrupted({command, mount->path()},
                                                   [&] { return mount->waitForStalls(); })
                               : runCliInterrupted({command, m_folder.path()});
        if (!run)
            QSKIP("the command ended before it caught Ctrl-C");
        QCOMPARE(run->exitCode, 130);
        QCOMPARE(run->errorText(), message);
        QCOMPARE(run->output, QByteArray());
        // It ended while the folder still did not answer, not once it finally did.
        QVERIFY(!stuck || mount->isStalling());
    }

    // Hostile names and arguments, as a user runs into them at a terminal.
    void controlCharactersReachNoTerminal_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("shown");
        QTest::newRow("scan of a missing folder")
            << QStringList{"scan", "/nowhere/" + escapeName}
            << "Cannot access directory: /nowhere/" + escapeShown;
        QTest::newRow("unknown command")
            << QStringList{escapeName} << "Unknown command: " + escapeShown;
        QTest::newRow("unknown option")
            << QStringList{"tree", "--" + escapeName} << "Unknown option: --" + escapeShown;
        QTest::newRow("scan id") << QStringList{"history", "delete", escapeName}
                                 << "Not a scan id: " + escapeShown;
        QTest::newRow("history file name")
            << QStringList{"history"} << "Failed to load scan_" + escapeShown + ".json: ";
    }

    void controlCharactersReachNoTerminal() {
        QFETCH(QStringList, arguments);
        QFETCH(QString, shown);
        writeFile(historyDirectory() + "/scan_" + escapeName + ".json", 3);

        const CliRun run = runCli(arguments);
        QVERIFY(run.exitCode != 0 || arguments == QStringList{"history"});
        QVERIFY2(run.errorText().startsWith(shown), run.errors);
        QVERIFY2(!holdsRawControlCharacters(run.errors), run.errors);
        QVERIFY2(!holdsRawControlCharacters(run.output), run.output);
    }

    // The texts a person reads on the terminal, checked without a terminal.
    void scanLineShowsWhatIsKnown() {
        ProgressText<ScanProgress> text;
        ScanProgress discovery{ScanPhase::scanning, 4000, 1000, "/x", 0, m_start, std::nullopt, {}};
        // No rate before the phase has run a while, no bytes while discovery reads none.
        QCOMPARE(text.describe(discovery, m_start.addSecs(1)), "Discovering files...  5,000 items");
        discovery.filesScanned = 8000;
        QCOMPARE(text.describe(discovery, m_start.addSecs(3)),
                 "Discovering files...  9,000 items  2,000 items/s");
        discovery.unansweredFolder = "/mnt/nfs";
        QCOMPARE(
            text.describe(discovery, m_start.addSecs(4)),
            "Discovering files...  Waiting for /mnt/nfs to respond...  9,000 items  1,333 items/s");

        // Analysis counts from zero again, so its rate starts afresh.
        ScanProgress analysis{ScanPhase::analyzing, 0, 0, "/x", 0, m_start, 10000, {}};
        QCOMPARE(text.describe(analysis, m_start.addSecs(3)),
                 "Analyzing files...  0 / 10,000 items");
        analysis.filesScanned = 4500;
        analysis.foldersScanned = 500;
        analysis.bytesScanned = 1'500'000;
        QCOMPARE(text.describe(analysis, m_start.addSecs(5)),
                 "Analyzing files...  5,000 / 10,000 items  1.5 MB  2,500 items/s  5s remaining");
    }

    void linesFitTheTerminal() {
        QCOMPARE(fitToWidth("exactly", 8), "exactly");
        // One column stays free so the line never wraps.
        QCOMPARE(fitToWidth("exactly", 7), "exactl");
        // A character outside the basic plane is never cut in half.
        const QString emoji = QString::fromUtf8("ab\U0001F600");
        QCOMPARE(fitToWidth(emoji, 4), "ab");
        QCOMPARE(fitToWidth(emoji, 5), emoji);
    }

    void historyTableIsAlignedAndSafe() {
        ScanSummary small;
        small.id = QUuid::createUuid();
        small.scanDate = m_start;
        small.rootPath = "/home/a\nb\033[2J";
        small.totalSize = 999;
        small.fileCount = 3;
        ScanSummary large = small;
        large.id = QUuid::createUuid();
        large.rootPath = "/srv/much/longer/path";
        large.totalSize = 1'230'000'000;
        large.fileCount = 1'234'567;

        const QStringList lines = historyTable({large, small}).split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines[3], QString());
        // Control characters cannot break the line or reach the terminal.
        QVERIFY(lines[2].contains("/home/a\\nb\\x1B[2J "));
        // Figures are right-aligned: their last digits share a column.
        const qsizetype filesEnd = lines[0].indexOf("Files") + 5;
        QCOMPARE(lines[1].indexOf("1,234,567") + 9, filesEnd);
        QCOMPARE(lines[2].indexOf(" 3 ") + 2, filesEnd);
        QVERIFY(lines[1].contains("1.23 GB"));
        QVERIFY(lines[1].endsWith(large.id.toString(QUuid::WithoutBraces).toUpper()));
        QVERIFY(!lines[0].endsWith(' '));
    }

private:
    QTemporaryDir m_folder;
    const QDateTime m_start = QDateTime(QDate(2024, 3, 5), QTime(14, 0), Qt::UTC);
};

QTEST_GUILESS_MAIN(CliCommandLineTest)
#include "CliCommandLineTest.moc"
