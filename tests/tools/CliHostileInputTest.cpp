#include "CliRun.h"
#include "FileTrees.h"

#include <QDir>
#include <QFile>
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

// Hostile names and arguments, as a user runs into them at a terminal.
class CliHostileInputTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        QFile::remove(historyDirectory());
        QVERIFY(QDir(historyDirectory()).removeRecursively());
        QVERIFY(QDir().mkpath(historyDirectory()));
    }

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
};

QTEST_GUILESS_MAIN(CliHostileInputTest)
#include "CliHostileInputTest.moc"
