#include "CliRun.h"
#include "FileTrees.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine::testing;

namespace {

QStringList childNames(const QJsonObject& folder) {
    QStringList names;
    for (const QJsonValue child : folder["childFolders"].toArray())
        names.append(child.toObject()["name"].toString());
    return names;
}

} // namespace

class CliTreeTest : public QObject {
    Q_OBJECT

private slots:
    void jsonHoldsEveryFolderBySize() {
        QTemporaryDir folder;
        const QString root = folder.path();
        writeFile(root + "/top.txt", 1);
        writeFile(root + "/small/y", 10);
        for (const char* name : {"/big/a", "/big/b", "/big/c"})
            writeFile(root + name, 1000);
        writeFile(root + "/big/inner folder/x", 500);
        writeFile(root + "/.hidden/z", 999);
        QVERIFY(QDir().mkpath(root + "/empty"));

        const CliRun run = runCli({"tree", "."}, {.workingDirectory = root});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.errors, QByteArray());
        QJsonParseError error;
        const QJsonObject tree = QJsonDocument::fromJson(run.output, &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(tree["path"].toString(), root);
        QCOMPARE(tree["depth"].toInteger(), 0);
        QCOMPARE(tree["totalSize"].toInteger(), 3511);
        QCOMPARE(tree["fileCount"].toInteger(), 6);
        // Largest first; the empty folder and the hidden one are left out.
        QCOMPARE(childNames(tree), (QStringList{"big", "small"}));
        const QJsonObject big = tree["childFolders"].toArray()[0].toObject();
        QCOMPARE(big["totalSize"].toInteger(), 3500);
        QCOMPARE(childNames(big), QStringList{"inner folder"});
    }

    void failuresPrintTheErrorText() {
        QTemporaryDir folder;
        writeFile(folder.filePath("file"), 1);
        for (const QString& path : {folder.filePath("missing"), folder.filePath("file")}) {
            const CliRun run = runCli({"tree", path});
            QCOMPARE(run.exitCode, 1);
            QCOMPARE(run.errorText(), "Cannot access: " + path + "\n");
            QCOMPARE(run.output, QByteArray());
        }
    }

    void treeDeeperThanJsonReadersIsRefused_data() {
        QTest::addColumn<int>("levels");
        QTest::newRow("as deep as readers go") << 510;
        QTest::newRow("one level deeper") << 511;
    }

    // A tree that readers could not take back is not written; one level less is, and reads back.
    void treeDeeperThanJsonReadersIsRefused() {
        QFETCH(int, levels);
        const QTemporaryDir folder = makeFastTemporaryDir();
        const QString root = folder.path();
        writeFile(root + QStringLiteral("/d").repeated(levels) + "/leaf", 1);

        const CliRun run = runCli({"tree", root});

        if (levels > 510) {
            QCOMPARE(run.exitCode, 1);
            QCOMPARE(run.errorText(),
                     QStringLiteral("Folder tree too deep for JSON: 511 levels of folders below "
                                    "%1, but JSON readers stop at 510\n")
                         .arg(root));
            QCOMPARE(run.output, QByteArray());
            return;
        }
        QCOMPARE(run.exitCode, 0);
        QJsonParseError error;
        QJsonValue folderJson = QJsonDocument::fromJson(run.output, &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        for (int level = 0; level < levels; ++level)
            folderJson = folderJson["childFolders"].toArray().at(0);
        QCOMPARE(folderJson["depth"].toInteger(), levels);
        QCOMPARE(folderJson["path"].toString(), root + QStringLiteral("/d").repeated(levels));
    }
};

QTEST_GUILESS_MAIN(CliTreeTest)
#include "CliTreeTest.moc"
