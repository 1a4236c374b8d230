#include "FileTrees.h"
#include "RecordedScan.h"
#include "ReferenceWalk.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

// The scan's folder table keyed like referenceFolderSizes.
std::map<QByteArray, std::pair<qint64, qint64>> folderSizesByPath(const FolderSizes& sizes) {
    std::map<QByteArray, std::pair<qint64, qint64>> folders;
    std::vector<QByteArray> paths;
    for (const FolderSizeRow& row : sizes.rows) {
        paths.push_back(row.parent < 0 ? QByteArray()
                        : paths[std::size_t(row.parent)].isEmpty()
                            ? row.name
                            : paths[std::size_t(row.parent)] + '/' + row.name);
        folders[paths.back()] = {row.size, row.fileCount};
    }
    return folders;
}

} // namespace

class FileSystemScannerTest : public QObject {
    Q_OBJECT

private slots:
    // An empty folder, or one of hidden items only, has nothing to access. The chosen root is
    // followed even when it is a link; links below it are not.
    void roots() {
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkpath("empty"));
        writeFiles(
            dir.path(),
            {{"hidden-only/.secret", 10}, {"hidden-only/.cache/data.bin", 10}, {"real/a.txt", 5}});
        QVERIFY(QFile::link(dir.path() + "/real", dir.path() + "/alias"));
        QVERIFY(QFile::link(dir.path() + "/real", dir.path() + "/real/link-back"));
        for (const QString& root : {dir.path() + "/empty", dir.path() + "/hidden-only/"}) {
            const RecordedScan scan = recordScan(root);
            QCOMPARE(scan.error().kind, ScanError::Kind::cannotAccessDirectory);
            QCOMPARE(scan.error().path, QDir::cleanPath(root));
            QCOMPARE(scan.snapshots.back().phase, ScanPhase::scanning);
        }
        const AnalysisResult alias = recordScan(dir.path() + "/alias").result();
        QCOMPARE(alias.fileCount, 1);
        QCOMPARE(alias.rootPath, dir.path() + "/alias");
        QCOMPARE(alias.largestFiles.front().path, dir.path() + "/alias/a.txt");
    }

    // The parallel discovery and the folding of its listing must add up to exactly what one
    // sequential walk in listing order gives: same figures, same largest files in the same order.
    void matchesSequentialWalk() {
        QTemporaryDir dir;
        generateTree(dir.path(), 4000, 2);

        const RecordedScan scan = recordScan(dir.path());

        QCOMPARE(withoutIdentities(scan.result()), withoutIdentities(referenceResult(dir.path())));
        QCOMPARE(folderSizesByPath(*scan.folderSizes),
                 referenceFolderSizes(dir.path(), scan.folderSizes->cutoff));
    }

    // Past a thousand folders only those holding a ten-thousandth of the scan are kept, and of
    // those only the largest two thousand: the folders down to a large file, not thousands of
    // one-byte folders beside it.
    void leavesOutTheSmallestOfManyFolders() {
        for (const auto& [smallFolders, largeFile, cutoff, keptFolders] :
             {std::tuple{1200, 100'000'000LL, 10'000LL, 3}, {2100, 10'000LL, 2LL, 4}}) {
            QTemporaryDir dir;
            writeFolders(dir.path() + "/many", smallFolders, 1);
            writeFile(dir.path() + "/deep/er/big.bin", 0);
            QVERIFY(QFile::resize(dir.path() + "/deep/er/big.bin", largeFile)); // sparse

            const FolderSizes sizes = *recordScan(dir.path()).folderSizes;

            QCOMPARE(sizes.cutoff, cutoff);
            QCOMPARE(folderSizesByPath(sizes), referenceFolderSizes(dir.path(), sizes.cutoff));
            QCOMPARE(int(sizes.rows.size()), keptFolders);
        }
    }
};

QTEST_GUILESS_MAIN(FileSystemScannerTest)
#include "FileSystemScannerTest.moc"
