#include "CliRun.h"
#include "FileTrees.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine::testing;

class CliCommandLineTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { writeFolders(m_folder.path(), 100, 20); }

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

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(CliCommandLineTest)
#include "CliCommandLineTest.moc"
