#include "FileTrees.h"
#include "RecordedBuild.h"
#include "RecordedScan.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <unistd.h>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

constexpr qint64 fileSize = 10'000'000;

void hardLink(const QString& existing, const QString& name) {
    QVERIFY2(::link(QFile::encodeName(existing).constData(), QFile::encodeName(name).constData()) ==
                 0,
             qPrintable(name));
}

} // namespace

// One 10 MB file under a hundred names in several folders takes 10 MB, as du counts it, in the scan
// and in the folder tree alike; a file whose other names lie outside the scanned folder counts in
// full.
class HardLinkTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        m_dir = std::make_unique<QTemporaryDir>(makeFastTemporaryDir());
        const QString scanned = m_dir->filePath("scanned");
        const QString original = writeFile(scanned + "/first/original.bin", fileSize);
        for (int name = 0; name < 99; ++name) {
            const QString folder = scanned + QStringLiteral("/folder-%1").arg(name % 5);
            QVERIFY(QDir().mkpath(folder));
            hardLink(original, folder + QStringLiteral("/copy-%1.bin").arg(name));
        }
        const QString outside = writeFile(m_dir->filePath("outside/alone.txt"), 1000);
        hardLink(outside, scanned + "/first/alone.txt");
    }

    void scanCountsEachFileOnce() {
        const AnalysisResult result = recordScan(m_dir->filePath("scanned")).result();
        QCOMPARE(result.fileCount, 101);
        QCOMPARE(result.totalSize, fileSize + 1000);
        QCOMPARE(result.extensionStats.value("bin").totalSize, fileSize);
        QCOMPARE(result.extensionStats.value("bin").fileCount, 100);
        QCOMPARE(result.largestFiles[0].size, fileSize);
        QCOMPARE(result.largestFiles[2].size, 0);
    }

    void folderTreeCountsEachFileOnce() {
        const FolderInfo tree = recordBuild(m_dir->filePath("scanned")).tree();
        // Folders holding only later names weigh nothing, and are left out like empty ones.
        QCOMPARE(tree.totalSize, fileSize + 1000);
        qint64 children = 0;
        for (const FolderInfo& child : tree.childFolders)
            children += child.totalSize;
        QCOMPARE(children, tree.totalSize);
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(HardLinkTest)
#include "HardLinkTest.moc"
