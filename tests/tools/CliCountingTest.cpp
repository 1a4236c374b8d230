#include "CliRun.h"
#include "FileTrees.h"
#include "model/Json.h"

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

// What find(1) lists below root: the lines it prints for each match, summed. `units` turns a
// printed figure into bytes (512 for %b, find's blocks).
Counted findSum(const QStringList& arguments, qint64 units = 1) {
    QProcess find;
    find.start(QStringLiteral("find"), arguments);
    if (!find.waitForFinished(60000) || find.exitCode() != 0)
        qFatal("find %s failed", qPrintable(arguments.join(u' ')));
    Counted counted;
    for (const QByteArray& line : find.readAllStandardOutput().split('\n')) {
        if (line.isEmpty())
            continue;
        ++counted.items;
        counted.bytes += line.toLongLong() * units;
    }
    return counted;
}

AnalysisResult scanned(const QStringList& arguments) {
    const CliRun run = runCli(QStringList{QStringLiteral("scan")} + arguments);
    if (run.exitCode != 0)
        qFatal("scan failed: %s", run.errors.constData());
    return *json::decodeResult(run.output);
}

QJsonObject treeOf(const QStringList& arguments) {
    const CliRun run = runCli(QStringList{QStringLiteral("tree")} + arguments);
    if (run.exitCode != 0)
        qFatal("tree failed: %s", run.errors.constData());
    return QJsonDocument::fromJson(run.output).object();
}

// A tmpfs mounted on a folder for the length of a scope; unmounted on every way out, so that a
// failing check leaves no mount behind.
class TmpfsMount {
public:
    explicit TmpfsMount(const QString& folder)
        : m_folder(folder) {
        QProcess mount;
        mount.start(QStringLiteral("mount"),
                    {"-t", "tmpfs", "-o", "size=8m", "tessarine-test", folder});
        mount.waitForFinished();
        m_mounted = mount.exitStatus() == QProcess::NormalExit && mount.exitCode() == 0;
        m_refusal = QString::fromLocal8Bit(mount.readAllStandardError()).trimmed();
    }
    ~TmpfsMount() {
        if (m_mounted)
            QProcess::execute(QStringLiteral("umount"), {"-l", m_folder});
    }
    TmpfsMount(const TmpfsMount&) = delete;
    TmpfsMount& operator=(const TmpfsMount&) = delete;

    bool isMounted() const { return m_mounted; }
    const QString& refusal() const { return m_refusal; }

private:
    QString m_folder;
    bool m_mounted = false;
    QString m_refusal;
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

        const AnalysisResult result = scanned(QStringList{root} + options);
        QCOMPARE(result.fileCount, expected.items);
        QCOMPARE(result.totalSize, expected.bytes);
        // The result says how it counted; a default one keeps the form it always had.
        QCOMPARE(result.scanOptions,
                 (ScanOptions{.includeHidden = hiddenToo, .diskUsage = blocks}));
        QCOMPARE(json::encode(result).contains("scanOptions"), hiddenToo || blocks);

        const QJsonObject tree = treeOf(QStringList{root} + options);
        QCOMPARE(tree["fileCount"].toInteger(), expected.items);
        QCOMPARE(tree["totalSize"].toInteger(), expected.bytes);
    }

    // Another file system mounted inside the scanned folder is entered unless told not to, as
    // find -xdev does; the mount point itself still counts as a folder.
    void staysOnOneFileSystemAsFindXdev() {
        const QTemporaryDir folder;
        const QString root = folder.path();
        writeFiles(root, {{"a.txt", 1000}, {"inner/b", 2000}});
        QVERIFY(QDir().mkpath(root + "/mnt"));
        const TmpfsMount mount(root + "/mnt");
        if (!mount.isMounted())
            QSKIP(qPrintable("Cannot mount a tmpfs here: " + mount.refusal()));
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

            const AnalysisResult result = scanned(arguments);
            QCOMPARE(result.fileCount, files.items);
            QCOMPARE(result.totalSize, files.bytes);
            QCOMPARE(result.folderCount, folders.items);
            QCOMPARE(result.scanOptions.oneFileSystem, oneFileSystem);
            const QJsonObject tree = treeOf(arguments);
            QCOMPARE(tree["totalSize"].toInteger(), files.bytes);
        }
    }
};

QTEST_GUILESS_MAIN(CliCountingTest)
#include "CliCountingTest.moc"
