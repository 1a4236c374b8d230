#include "RecordedScan.h"
#include "TestTrees.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

#include <climits>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

// Every item below root, hidden ones included, with its size, modification time and content
// digest: what a scan must leave exactly as it found it.
QStringList treeState(const QString& root) {
    QStringList state;
    QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QFileInfo info(it.next());
        QString line = info.filePath() + ' ' + QString::number(info.size()) + ' ' +
                       QString::number(info.lastModified().toMSecsSinceEpoch());
        QFile file(info.filePath());
        if (info.isFile() && !info.isSymLink() && file.open(QIODevice::ReadOnly))
            line += ' ' + QCryptographicHash::hash(file.readAll(), QCryptographicHash::Md5).toHex();
        state.append(line);
    }
    state.sort();
    return state;
}

} // namespace

class FileSystemScannerTest : public QObject {
    Q_OBJECT

private slots:
    void scansOneFile();
    void failsOnFoldersWithNothingToCount();
    void matchesSequentialWalk_data();
    void matchesSequentialWalk();
    void countsNeitherHiddenItemsNorPackageContentsNorLinks();
    void keepsOddNamesReadable();
    void scansChainDeeperThanPathMax();
};

void FileSystemScannerTest::scansOneFile() {
    QTemporaryDir dir;
    writeFile(dir.path() + "/notes.TXT", 42);

    const RecordedScan scan = recordScan(dir.path());

    QCOMPARE(scan.phases(),
             (QList<ScanPhase>{ScanPhase::initializing, ScanPhase::scanning, ScanPhase::analyzing,
                               ScanPhase::finalizing, ScanPhase::complete}));
    // Fewer items than one progress interval: the closing snapshots still show the opening
    // counters of the analysis, with its estimate.
    const ScanProgress& last = scan.snapshots.back();
    QCOMPARE(last.filesScanned, 0);
    QCOMPARE(last.estimatedTotalFiles, 1);
    QCOMPARE(last.startTime, scan.snapshots.front().startTime);

    const AnalysisResult& result = scan.result();
    QCOMPARE(result.rootPath, QDir::cleanPath(dir.path()));
    QCOMPARE(result.rootName, QDir(dir.path()).dirName());
    QCOMPARE(result.fileCount, 1);
    QCOMPARE(result.folderCount, 0);
    QCOMPARE(result.totalSize, 42);
    QCOMPARE(result.maxDepth, 1);
    QCOMPARE(result.largestFiles.size(), 1);
    const FileInfo& file = result.largestFiles.front();
    QCOMPARE(file.path, dir.path() + "/notes.TXT");
    QCOMPARE(file.name, QStringLiteral("notes.TXT"));
    QCOMPARE(file.fileExtension, QStringLiteral("txt"));
    QCOMPARE(file.category, FileCategory::documents);
    QCOMPARE(file.depth, 1);
    QCOMPARE(file.modificationDate, QFileInfo(file.path).lastModified().toUTC());
    QVERIFY(result.scanDuration >= 0);
    QVERIFY(result.scanDate >= last.startTime);
    QVERIFY(!result.folderTree);
}

void FileSystemScannerTest::failsOnFoldersWithNothingToCount() {
    QTemporaryDir dir;
    QDir(dir.path()).mkpath("empty");
    writeFiles(
        dir.path(),
        {{"hidden-only/.secret", 10}, {"hidden-only/.cache/data.bin", 10}, {"plain-file", 10}});

    for (const char* name : {"empty", "hidden-only", "missing", "plain-file"}) {
        const QString path = dir.path() + "/" + name;
        const RecordedScan scan = recordScan(path + "/");
        QCOMPARE(scan.error().kind, ScanError::Kind::cannotAccessDirectory);
        QCOMPARE(scan.error().errorDescription(), "Cannot access directory: " + path);
        QCOMPARE(scan.snapshots.back().phase, ScanPhase::scanning);
    }
}

void FileSystemScannerTest::matchesSequentialWalk_data() {
    QTest::addColumn<int>("items");
    QTest::addColumn<unsigned>("seed");
    QTest::newRow("small") << 300 << 1u;
    QTest::newRow("larger") << 4000 << 2u;
}

// The parallel discovery and the folding of its listing must add up to exactly what one
// sequential walk in listing order gives: same figures, same largest files in the same order.
void FileSystemScannerTest::matchesSequentialWalk() {
    QFETCH(int, items);
    QFETCH(unsigned, seed);
    QTemporaryDir dir;
    generateTree(dir.path(), items, seed);
    const QStringList before = treeState(dir.path());

    const RecordedScan scan = recordScan(dir.path());

    QCOMPARE(withoutIdentities(scan.result()), withoutIdentities(referenceResult(dir.path())));
    QCOMPARE(treeState(dir.path()), before);
}

void FileSystemScannerTest::countsNeitherHiddenItemsNorPackageContentsNorLinks() {
    QTemporaryDir outside;
    writeFile(outside.path() + "/big.iso", 1'000'000);
    QTemporaryDir dir;
    const QString root = dir.path();
    writeFiles(root, {{".hidden-file", 100},
                      {".hidden-folder/inside.txt", 100},
                      {"Editor.app/Contents/MacOS/editor", 5000},
                      {"docs/readme.md", 7},
                      {"docs/deeper/archive.TAR", 20}});
    QVERIFY(QFile::link(outside.path() + "/big.iso", root + "/link-to-big.iso"));
    QVERIFY(QFile::link(outside.path(), root + "/docs/link-to-folder"));

    const RecordedScan scan = recordScan(root);
    const AnalysisResult& result = scan.result();

    // Discovered: the package, the two links, docs, readme, deeper, archive.
    QCOMPARE(scan.snapshotsIn(ScanPhase::analyzing).front().estimatedTotalFiles, 7);
    QCOMPARE(result.fileCount, 2);
    QCOMPARE(result.folderCount, 3); // docs, deeper, and the package as one folder
    QCOMPARE(result.totalSize, 27);
    QCOMPARE(result.maxDepth, 3);
    const std::map<qint64, DepthStats> depths{{1, {0, 2, 0}}, {2, {1, 1, 7}}, {3, {1, 0, 20}}};
    QCOMPARE(result.depthDistribution, depths);
    QCOMPARE(result.extensionStats.value("tar").category, FileCategory::archives);
    QCOMPARE(result.largestFiles.front().fileExtension, QStringLiteral("tar"));
    QCOMPARE(result.largestFiles.front().depth, 3);
}

void FileSystemScannerTest::keepsOddNamesReadable() {
    QTemporaryDir dir;
    const QList<QByteArray> names{"with space.txt", "quote\"and'apostrophe.Md",
                                  "new\nline.txt",  "bad-\xff\xfe.\xfe",
                                  "trailing-dot.",  "ümlaut.JPEG"};
    const RawNamedFiles files(dir.path(), names, 10, 1);

    const AnalysisResult result = recordScan(dir.path()).result();

    QCOMPARE(result.fileCount, names.size());
    QCOMPARE(result.largestFiles.size(), names.size());
    for (const FileInfo& file : result.largestFiles) {
        const QByteArray& raw = names[file.size - 10];
        QCOMPARE(file.name, QFile::decodeName(raw));
        QCOMPARE(file.path, dir.path() + '/' + file.name);
    }
    QVERIFY(result.extensionStats.contains("md"));
    QVERIFY(result.extensionStats.contains("jpeg"));
    QCOMPARE(result.extensionStats.value("").fileCount, 1); // a trailing dot is no extension
    QCOMPARE(result.extensionStats.value("jpeg").category, FileCategory::images);
}

void FileSystemScannerTest::scansChainDeeperThanPathMax() {
    const QTemporaryDir dir = makeFastTemporaryDir();
    const int depth = 10000;
    const FolderChain chain(dir.path(), depth);

    const AnalysisResult result = recordScan(dir.path()).result();

    QCOMPARE(result.folderCount, depth);
    QCOMPARE(result.fileCount, 1);
    QCOMPARE(result.maxDepth, depth + 1);
    QCOMPARE(qint64(result.depthDistribution.size()), depth + 1);
    const FileInfo& leaf = result.largestFiles.front();
    QCOMPARE(leaf.depth, depth + 1);
    QVERIFY(leaf.path.size() > PATH_MAX);
    QVERIFY(leaf.path.endsWith("/d/d/leaf.txt"));
}

QTEST_GUILESS_MAIN(FileSystemScannerTest)
#include "FileSystemScannerTest.moc"
