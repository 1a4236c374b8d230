#include "CliRun.h"
#include "FileTrees.h"

#include "model/Json.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;
using namespace tessarine::testing;

class CliScanTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        const QString root = m_folder->path();
        writeFile(root + "/a.txt", 100);
        writeFile(root + "/photos/b.jpg", 2000);
        writeFile(root + "/photos/raw, \"odd\"/c", 3000);
        writeFile(root + "/.hidden", 500);
        QVERIFY(QFile::link(root + "/a.txt", root + "/link-to-a"));
    }

    void jsonDescribesTheFolder() {
        // A relative folder: the result names the folder absolutely.
        const CliRun run = runCli({"scan", "."}, {.workingDirectory = m_folder->path()});
        QCOMPARE(run.exitCode, 0);
        // Without a terminal, nothing but the data.
        QCOMPARE(run.errors, QByteArray());

        QString problem;
        const auto result = json::decodeResult(run.output, &problem);
        QVERIFY2(result, qPrintable(problem));
        QCOMPARE(result->rootPath, m_folder->path());
        QCOMPARE(result->totalSize, 5100); // no hidden file, no link
        QCOMPARE(result->fileCount, 3);
        QCOMPARE(result->folderCount, 2);
        QCOMPARE(result->maxDepth, 3);
        QCOMPARE(result->largestFiles.size(), 3);
        QCOMPARE(result->largestFiles.first().path, m_folder->path() + "/photos/raw, \"odd\"/c");
        // The output is the history file's form, byte for byte.
        QCOMPARE(run.output, json::encode(*result));
        // Scanning without --save leaves the history alone.
        QVERIFY(QDir(historyDirectory()).entryList(QDir::Files).isEmpty());
    }

    void csvListsTheLargestFiles() {
        const CliRun run = runCli({"scan", "--csv", m_folder->path()});
        QCOMPARE(run.exitCode, 0);
        const QList<QByteArray> lines = run.output.split('\n');
        QCOMPARE(lines.size(),
                 5); // header, three files, and the empty rest after the last line feed
        QCOMPARE(lines[0], "Path,Name,Size (bytes),Extension,Category,Depth,Modified");
        QVERIFY2(lines[1].startsWith('"' + m_folder->path().toUtf8() +
                                     "/photos/raw, \"\"odd\"\"/c\",c,3000,,"),
                 lines[1]);
        QVERIFY(lines[2].contains(",b.jpg,2000,jpg,Images,2,"));
        QCOMPARE(lines[4], QByteArray());
    }

    void failuresPrintTheErrorText() {
        // An empty folder fails the same way: AppStateTest.
        for (const QString& folder : {m_folder->path() + "/missing", m_folder->path() + "/a.txt"}) {
            const CliRun run = runCli({"scan", folder});
            QCOMPARE(run.exitCode, 1);
            QCOMPARE(run.errorText(), "Cannot access directory: " + folder + "\n");
            QCOMPARE(run.output, QByteArray());
        }
    }

    void writeErrorsFail() {
        const CliRun run = runCli({"scan", m_folder->path()}, {.outputFile = "/dev/full"});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.errorText().startsWith("Cannot write the output: "), run.errors);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(CliScanTest)
#include "CliScanTest.moc"
