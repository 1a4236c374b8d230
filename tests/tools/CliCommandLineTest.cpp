#include "CliRun.h"
#include "FileTrees.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

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
    void initTestCase() { writeFolders(m_folder.path(), 100, 20); }

    void init() {
        QFile::remove(historyDirectory());
        QVERIFY(QDir(historyDirectory()).removeRecursively());
        QVERIFY(QDir().mkpath(historyDirectory()));
    }

    void helpGoesToStandardOutput_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("--help") << QStringList{"--help"};
        QTest::newRow("scan --help") << QStringList{"scan", "/nowhere", "--help"};
        QTest::newRow("history -h") << QStringList{"history", "-h"};
    }

    void helpGoesToStandardOutput() {
        QFETCH(QStringList, arguments);
        const CliRun run = runCli(arguments);
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.output.startsWith("Usage:\n"));
        for (const char* command : {"scan FOLDER", "tree FOLDER", "history [--json]", "delete ID"})
            QVERIFY2(run.output.contains(command), command);
        QCOMPARE(run.errors, QByteArray());
    }

    void versionGoesToStandardOutput() {
        const CliRun run = runCli({"--version"});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(QRegularExpression(QStringLiteral("^tessarine-cli \\d+\\.\\d+\\.\\d+\n$"))
                     .match(QString::fromUtf8(run.output))
                     .hasMatch(),
                 run.output.constData());
    }

    void badUsageExitsWithTwo_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("problem");
        QTest::newRow("nothing") << QStringList{} << "Missing command";
        QTest::newRow("unknown command")
            << QStringList{"frobnicate"} << "Unknown command: frobnicate";
        QTest::newRow("scan without folder")
            << QStringList{"scan"} << "scan needs exactly one FOLDER";
        QTest::newRow("unknown option")
            << QStringList{"scan", "--fast", "/a"} << "Unknown option: --fast";
        QTest::newRow("history with a folder") << QStringList{"history", "/a"} << "history takes";
        QTest::newRow("delete as json")
            << QStringList{"history", "delete", "x", "--json"} << "history takes";
    }

    void badUsageExitsWithTwo() {
        QFETCH(QStringList, arguments);
        QFETCH(QString, problem);
        const CliRun run = runCli(arguments);
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
    // the status a shell gives an interrupted job.
    void ctrlCCancels_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("message");
        QTest::newRow("scan") << "scan"
                              << "Scan was cancelled\n";
        QTest::newRow("tree") << "tree"
                              << "Folder tree building was cancelled\n";
    }

    void ctrlCCancels() {
        QFETCH(QString, command);
        QFETCH(QString, message);
        const auto run = runCliInterrupted({command, m_folder.path()});
        if (!run)
            QSKIP("the command ended before it caught Ctrl-C");
        QCOMPARE(run->exitCode, 130);
        QCOMPARE(run->errorText(), message);
        QCOMPARE(run->output, QByteArray());
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

    // Data for programs keeps every byte of a name: JSON escapes it its own way, CSV not at all.
    void dataOutputStaysExact() {
        QTemporaryDir folder;
        writeFile(folder.filePath(escapeName), 10);

        const CliRun csv = runCli({"scan", "--csv", folder.path()});
        QCOMPARE(csv.exitCode, 0);
        QVERIFY2(csv.output.contains(escapeName.toUtf8()), csv.output);

        const CliRun json = runCli({"scan", folder.path()});
        QCOMPARE(json.exitCode, 0);
        QVERIFY2(json.output.contains(R"(\u001b]0;owned\u0007\u001b[2J)"), json.output);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(CliCommandLineTest)
#include "CliCommandLineTest.moc"
