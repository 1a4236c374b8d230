#include "CliRun.h"
#include "FileTrees.h"

#include "model/Json.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

// Runs ncdu itself; false (with a warning) when it fails.
bool runNcdu(const QStringList& arguments) {
    QProcess ncdu;
    ncdu.start(QStringLiteral("ncdu"), arguments);
    if (!ncdu.waitForFinished(-1) || ncdu.exitCode() != 0) {
        qWarning("ncdu %s failed: %s", qPrintable(arguments.join(u' ')),
                 ncdu.readAllStandardError().constData());
        return false;
    }
    return true;
}

// A result or folder tree as JSON with what differs between two readings of one tree removed:
// identities, the moments of the scan and of the files (ncdu keeps whole seconds), the duration,
// and what records where a result came from.
QJsonValue comparable(const QJsonValue& value, const QStringList& left) {
    if (value.isArray()) {
        QJsonArray items;
        for (const QJsonValue& item : value.toArray())
            items.append(comparable(item, left));
        return items;
    }
    if (!value.isObject())
        return value;
    QJsonObject members;
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!left.contains(it.key()))
            members.insert(it.key(), comparable(it.value(), left));
    }
    return members;
}

QJsonValue parsed(const QByteArray& text) {
    const QJsonDocument document = QJsonDocument::fromJson(text);
    return document.isObject() ? QJsonValue(document.object()) : QJsonValue();
}

const QStringList resultVariables{"id",           "scanDate",  "scanDuration", "modificationDate",
                                  "importSource", "folderTree"};

// A tree holding what a disk holds and an export must carry across: hidden items, a package, a
// named pipe and links (generateTree), files with several names, odd and invalid names, and an
// empty folder.
void writeAwkwardTree(const QString& root) {
    generateTree(root, 300, 7);
    writeFile(root + "/links/first.bin", 5000);
    QDir(root).mkpath("links/again");
    QVERIFY(::link(QFile::encodeName(root + "/links/first.bin").constData(),
                   QFile::encodeName(root + "/links/again/second.bin").constData()) == 0);
    QDir(root).mkpath("empty");
    writeFile(root + "/odd/new\nline \"quoted\" back\\slash.txt", 33);
}

} // namespace

class CliImportTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        if (QStandardPaths::findExecutable("ncdu").isEmpty())
            QSKIP("ncdu is not installed (scripts/install-deps.sh installs it)");
    }

    // ncdu's export of a tree imports equal to a scan of it, with the tree a build on the disk
    // gives; and ncdu browses what `tree --ncdu` writes, its sums of every folder ours.
    void importOfNcduExportEqualsScan() {
        QTemporaryDir dir;
        const QString root = dir.filePath("tree");
        writeAwkwardTree(root);
        RawNamedFiles raw(root + "/odd", {"caf\xe9.txt", "x\xff.txt", "x\xfe.txt"}, 10, 10);
        const QString exported = dir.filePath("export.json");
        QVERIFY(runNcdu({"-e", "-o", exported, root}));

        const CliRun scan = runCli({"scan", root});
        const QJsonValue tree = comparable(parsed(runCli({"tree", root}).output), {"id"});
        // Imported where the folder is not, as on another machine: nothing may come from disk.
        QVERIFY(QDir().rename(root, root + "-elsewhere"));
        const CliRun imported = runCli({"import", exported});
        QVERIFY(QDir().rename(root + "-elsewhere", root));
        QCOMPARE(imported.exitCode, 0);
        QCOMPARE(comparable(parsed(imported.output), resultVariables),
                 comparable(parsed(scan.output), resultVariables));

        const QJsonObject result = parsed(imported.output).toObject();
        QCOMPARE(comparable(result["folderTree"], {"id"}), tree);
        const QJsonObject source = result["importSource"].toObject();
        QCOMPARE(source["program"].toString(), "ncdu 1.18");
        QCOMPARE(source["fileName"].toString(), "export.json");
        QCOMPARE(source["unknownFields"].toArray(), QJsonArray{"scanDuration"});

        const QString ours = dir.filePath("ours.json");
        QCOMPARE(runCli({"tree", root, "--ncdu"}, {.outputFile = ours}).exitCode, 0);
        QVERIFY(runNcdu({"-f", ours, "-o", exported}));
        QCOMPARE(comparable(parsed(runCli({"import", exported}).output)["folderTree"], {"id"}),
                 tree);
    }

    // Without ncdu's extended mode nothing tells when a file changed: said, not invented. Read
    // from a pipe and saved, as `ssh server ncdu -o- /srv | tessarine-cli import - --save` does,
    // with the folder sizes of its tree, so that a later import names the folder that grew.
    void plainExportsSavedAndCompared() {
        QTemporaryDir dir;
        const QString root = dir.filePath("tree");
        writeFiles(root, {{"a/one.txt", 100}, {"two.jpg", 2000}});
        const QString exported = dir.filePath("plain.json");
        QVERIFY(runNcdu({"-o", exported, root}));
        const auto first =
            json::decodeResult(runCli({"import", "-", "--save"}, {.inputFile = exported}).output);
        QVERIFY(first);
        QCOMPARE(first->totalSize, 2100);
        QCOMPARE(first->largestFiles.first().modificationDate, distantPast());
        QCOMPARE(first->importSource->fileName, "standard input");
        QVERIFY(first->importSource->unknownFields.contains("modificationDate"));

        writeFile(root + "/a/three.txt", 5000);
        QVERIFY(runNcdu({"-o", exported, root}));
        const auto second = json::decodeResult(runCli({"import", exported, "--save"}).output);
        QVERIFY(second);
        const CliRun compared =
            runCli({"history", "compare", first->id.toString(), second->id.toString()});
        QCOMPARE(compared.exitCode, 0);
        QVERIFY2(
            compared.output.contains(QFile::encodeName(root) + "/a  (100 bytes \xe2\x86\x92 5 KB)"),
            compared.output.constData());
    }

    // A chain deeper than any stack: both ways, without recursion.
    void deepChain() {
        const QTemporaryDir dir = makeFastTemporaryDir();
        QVERIFY(QDir(dir.path()).mkdir("chain"));
        const FolderChain chain(dir.filePath("chain"), 10000);
        const QString exported = dir.filePath("chain.json");
        QVERIFY(runNcdu({"-o", exported, dir.filePath("chain")}));
        const CliRun imported = runCli({"import", exported});
        QCOMPARE(imported.exitCode, 0);
        const auto result = json::decodeResult(imported.output);
        QVERIFY(result);
        QCOMPARE(result->maxDepth, 10001);
        QCOMPARE(result->fileCount, 1);
        QCOMPARE(result->folderTree->totalSize, 1);
        QVERIFY(result->importSource->unknownFields.contains("folderTree"));

        const QString ours = dir.filePath("ours.json");
        QCOMPARE(runCli({"tree", dir.filePath("chain"), "--ncdu"}, {.outputFile = ours}).exitCode,
                 0);
        QVERIFY(runNcdu({"-f", ours, "-o", dir.filePath("again.json")}));
    }

    // Each gives a clear message and saves nothing. The last is far larger than any export, and
    // is refused without being copied into memory.
    void hostileImports_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("message");
        QTest::addColumn<qint64>("size"); // the file is made this long, with a hole after the text
        const QByteArray head = R"([1,2,{"progname":"ncdu"},[{"name":"/srv"},)";
        const auto row = [](const char* tag, const QByteArray& text, const char* message,
                            qint64 size = 0) {
            QTest::newRow(tag) << text << QString::fromUtf8(message) << size;
        };
        row("truncated", head + R"({"name":"a","asize":1)", "ends too early");
        row("major version", R"([2,0,{},[{"name":"/"}]])", "version 2 of the ncdu format");
        row("past 64 bits", head + R"({"name":"a","asize":99999999999999999999}]])",
            "past 64 bits");
        row("slash", head + R"({"name":"a/b"}]])", "single path component");
        row("dot dot", head + R"([{"name":".."}]]])", "single path component");
        row("nested", head + QByteArray(100000, '['), "expected \"{\"");
        row("not json", "PK\x03\x04zip", "Not an ncdu export");
        row("not a result", R"({"id": 1})", "Invalid import file");
        row("empty", QByteArray(), "Not an ncdu export");
        row("2 GB", QByteArray(), "Not an ncdu export", qint64(2) << 30);
    }

    void hostileImports() {
        QFETCH(QByteArray, text);
        QFETCH(QString, message);
        QFETCH(qint64, size);
        const QStringList stored = QDir(historyDirectory()).entryList(QDir::Files);
        QTemporaryDir dir;
        QFile file(writeFile(dir.filePath("hostile.json"), text));
        QVERIFY(size == 0 || file.resize(size));
        const CliRun run = runCli({"import", file.fileName(), "--save"});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.errorText().contains(message), qPrintable(run.errorText()));
        QVERIFY(run.output.isEmpty());
        QCOMPARE(QDir(historyDirectory()).entryList(QDir::Files), stored);
    }
};

QTEST_GUILESS_MAIN(CliImportTest)
#include "CliImportTest.moc"
