#include "CliRun.h"
#include "FileTrees.h"
#include "model/Json.h"
#include "model/PathBytes.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <unistd.h>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

// Runs the program with the working folder `folder`, which neither QProcess nor QDir can name.
CliRun runInside(const QByteArray& folder, const QStringList& arguments) {
    const int here = ::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    int fd = ::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (const QByteArray& name : folder.split('/')) {
        if (name.isEmpty())
            continue;
        const int next = ::openat(fd, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::close(fd);
        fd = next;
    }
    const bool entered = ::fchdir(fd) == 0;
    ::close(fd);
    const CliRun run = entered ? runCli(arguments) : CliRun();
    (void)::fchdir(here);
    ::close(here);
    return run;
}

} // namespace

class CliScanTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        writeFile(m_folder->path() + "/a.txt", 100);
    }

    // A scan of a missing folder: CliCommandLineTest; of an empty one: AppStateTest.
    void failuresPrintTheErrorText() {
        for (const QString& folder : {m_folder->path() + "/missing", m_folder->path() + "/a.txt"}) {
            const CliRun run = runCli({"tree", folder});
            QCOMPARE(run.exitCode, 1);
            QCOMPARE(run.errorText(), "Cannot access: " + folder + "\n");
            QCOMPARE(run.output, QByteArray());
        }
    }

    void writeErrorsFail() {
        const CliRun run = runCli({"scan", m_folder->path()}, {.outputFile = "/dev/full"});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.errorText().startsWith("Cannot write the output: "), run.errors);
    }

    // "." inside a folder whose path is not UTF-8, or is longer than the system takes in one
    // piece, is that folder, by its own bytes.
    void scansFromInsideFoldersQtCannotName() {
        const QTemporaryDir folder = makeFastTemporaryDir();
        const QByteArray base = QFile::encodeName(folder.path());
        const QByteArray latin1 = base + "/caf\xe9";
        std::filesystem::create_directory(latin1.toStdString());
        std::ofstream((latin1 + "/x\xff").toStdString()) << 'x';
        const FolderChain chain(folder.path(), 2100);
        const QByteArray deep = base + QByteArray("/d").repeated(2100);

        for (const QByteArray& inside : {latin1, deep}) {
            const CliRun scan = runInside(inside, {"scan", "."});
            QVERIFY2(scan.exitCode == 0, scan.errors);
            // Without a terminal, nothing but the data, in the history file's form.
            QCOMPARE(scan.errors, QByteArray());
            const auto result = json::decodeResult(scan.output);
            QCOMPARE(scan.output, json::encode(*result));
            QCOMPARE(pathToBytes(result->rootPath), inside);
            QCOMPARE(result->fileCount, 1);
            const CliRun tree = runInside(inside, {"tree", "."});
            QVERIFY2(tree.exitCode == 0, tree.errors);
            QCOMPARE(pathToBytes(QJsonDocument::fromJson(tree.output)["path"].toString()), inside);
        }
        std::filesystem::remove_all(latin1.toStdString());
    }

    // A tree that readers could not take back is not written; one level less is, and reads back.
    void treeDeeperThanJsonReadersIsRefused() {
        const QTemporaryDir folder = makeFastTemporaryDir();
        const QString root = folder.path();
        writeFile(root + QStringLiteral("/d").repeated(511) + "/leaf", 1);
        const CliRun refused = runCli({"tree", root});
        QCOMPARE(refused.exitCode, 1);
        QCOMPARE(refused.errorText(),
                 QStringLiteral("Folder tree too deep for JSON: 511 levels of folders below %1, "
                                "but JSON readers stop at 510\n")
                     .arg(root));
        QCOMPARE(refused.output, QByteArray());

        const CliRun written = runCli({"tree", root + "/d"});
        QCOMPARE(written.exitCode, 0);
        // Qt's reader, like the others, takes it back whole.
        QJsonParseError error;
        QJsonDocument::fromJson(written.output, &error);
        QCOMPARE(error.error, QJsonParseError::NoError);
        QVERIFY(written.output.contains("\"depth\" : 510"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(CliScanTest)
#include "CliScanTest.moc"
