#include "CliRun.h"
#include "FileTrees.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <array>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

struct Counted {
    qint64 items = 0;
    qint64 bytes = 0;
};

// find(1) run to its end: how many lines it printed and their figures summed, each times `units`
// (512 for %b, find's blocks).
Counted findSum(const QStringList& arguments, qint64 units = 1) {
    QProcess find;
    find.start(QStringLiteral("find"), arguments);
    if (!find.waitForFinished(60000) || find.exitCode() != 0)
        qFatal("find %s failed", qPrintable(arguments.join(u' ')));
    Counted counted;
    for (const QByteArray& line : find.readAllStandardOutput().split('\n')) {
        counted.items += !line.isEmpty();
        counted.bytes += line.toLongLong() * units;
    }
    return counted;
}

// What `tessarine-cli COMMAND ARGUMENTS...` prints: a result or a tree.
const QJsonObject outputOf(const QStringList& arguments) {
    const CliRun run = runCli(arguments);
    if (run.exitCode != 0)
        qFatal("%s failed: %s", qPrintable(arguments.join(u' ')), run.errors.constData());
    return QJsonDocument::fromJson(run.output).object();
}

// A tmpfs mounted on a folder for the length of a scope: a failing check leaves no mount behind.
struct TmpfsMount {
    explicit TmpfsMount(const QString& folder)
        : folder(folder) {
        mount.start(QStringLiteral("mount"), {"-t", "tmpfs", "-o", "size=8m", "tessarine", folder});
        mount.waitForFinished();
    }
    ~TmpfsMount() {
        if (isMounted())
            QProcess::execute(QStringLiteral("umount"), {"-l", folder});
    }
    bool isMounted() const {
        return mount.exitStatus() == QProcess::NormalExit && !mount.exitCode();
    }

    QString folder;
    QProcess mount;
};

} // namespace

// The counting options against what find(1) says of the same files: the scan and the tree count
// files (not the folders' own blocks that du adds), so find's sums are the reference.
class CliCountingTest : public QObject {
    Q_OBJECT

private slots:
    void countsWhatFindSums_data() {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<bool>("hiddenToo");
        QTest::addColumn<bool>("blocks");
        QTest::newRow("default") << QStringList() << false << false;
        QTest::newRow("hidden") << QStringList{"--hidden"} << true << false;
        QTest::newRow("disk usage") << QStringList{"--disk-usage"} << false << true;
        QTest::newRow("both") << QStringList{"--disk-usage", "--hidden"} << true << true;
    }

    // A home folder as Linux users have one: most of its space under hidden folders, and a sparse
    // disk image whose size is far from what it takes.
    void countsWhatFindSums() {
        QFETCH(QStringList, options);
        QFETCH(bool, hiddenToo);
        QFETCH(bool, blocks);
        const QTemporaryDir home;
        const QString root = home.path();
        writeFiles(root, {{"docs/report.txt", 12345},
                          {".cache/app/blob", 300000},
                          {".cache/app/.index/x", 5000},
                          {".config/settings.ini", 700},
                          {"photos/.thumbnail.jpg", 4000},
                          {"photos/beach.jpg", 81000}});
        QFile image(root + "/disk.img");
        QVERIFY(image.open(QIODevice::WriteOnly) && image.resize(qint64(2) << 30));

        QStringList findArguments{root, "-type", "f"};
        if (!hiddenToo)
            findArguments << "-not"
                          << "-path"
                          << "*/.*";
        findArguments << "-printf" << (blocks ? "%b\\n" : "%s\\n");
        const Counted expected = findSum(findArguments, blocks ? 512 : 1);

        const QJsonObject result = outputOf(QStringList{"scan", root} + options);
        for (const QJsonObject& counted : {result, outputOf(QStringList{"tree", root} + options)}) {
            QCOMPARE(counted["fileCount"].toInteger(), expected.items);
            QCOMPARE(counted["totalSize"].toInteger(), expected.bytes);
        }
        // The result says how it counted; a default one keeps the form it always had.
        const QJsonValue recorded = result["scanOptions"];
        QCOMPARE(recorded.isUndefined(), !hiddenToo && !blocks);
        QCOMPARE(recorded["includeHidden"].toBool(), hiddenToo);
        QCOMPARE(recorded["diskUsage"].toBool(), blocks);
    }

    // Another file system mounted inside the scanned folder is entered unless told not to, as
    // find -xdev does; the mount point itself still counts as a folder.
    void staysOnOneFileSystemAsFindXdev() {
        const QTemporaryDir folder;
        const QString root = folder.path();
        writeFiles(root, {{"a.txt", 1000}, {"inner/b", 2000}});
        QVERIFY(QDir().mkpath(root + "/mnt"));
        TmpfsMount mount(root + "/mnt");
        if (!mount.isMounted())
            QSKIP(qPrintable("Cannot mount a tmpfs here: " + mount.mount.readAllStandardError()));
        writeFiles(root, {{"mnt/c", 3000}, {"mnt/sub/d", 10}});

        for (const bool oneFileSystem : std::array{false, true}) {
            const QStringList xdev = oneFileSystem ? QStringList{"-xdev"} : QStringList();
            const Counted files =
                findSum(QStringList{root} + xdev + QStringList{"-type", "f", "-printf", "%s\\n"});
            const Counted folders = findSum(QStringList{root, "-mindepth", "1"} + xdev +
                                            QStringList{"-type", "d", "-printf", "0\\n"});
            QStringList arguments{root};
            if (oneFileSystem)
                arguments << "--one-file-system";

            const QJsonObject result = outputOf(QStringList{"scan"} + arguments);
            QCOMPARE(result["fileCount"].toInteger(), files.items);
            QCOMPARE(result["totalSize"].toInteger(), files.bytes);
            QCOMPARE(result["folderCount"].toInteger(), folders.items);
            QCOMPARE(result["scanOptions"]["oneFileSystem"].toBool(), oneFileSystem);
            QCOMPARE(outputOf(QStringList{"tree"} + arguments)["totalSize"].toInteger(),
                     files.bytes);
        }
    }
};

QTEST_GUILESS_MAIN(CliCountingTest)
#include "CliCountingTest.moc"
