#include "FileTrees.h"
#include "RecordedBuild.h"
#include "RecordedScan.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>

using namespace tessarine;
using namespace tessarine::testing;

namespace {

constexpr qint64 largest = std::numeric_limits<qint64>::max();

// A sparse file claiming 2^63 - 1 bytes; false where the file system cannot hold one.
bool makeHugeFile(const QString& path) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(largest);
}

} // namespace

// Files whose sizes add up past 2^63 - 1: every sum stops at the largest 64-bit value instead of
// wrapping to a small or negative total.
class HugeSizesTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_dir = std::make_unique<QTemporaryDir>(makeFastTemporaryDir());
        for (const char* name : {"a/one.log", "a/two.log", "b/three.log"}) {
            if (!makeHugeFile(m_dir->filePath(name)))
                QSKIP("this file system cannot hold a sparse file of 2^63 - 1 bytes");
        }
    }

    void scanAndFolderTreeSumsSaturate() {
        const AnalysisResult result = recordScan(m_dir->path()).result();
        QCOMPARE(result.fileCount, 3);
        QCOMPARE(result.totalSize, largest);
        QCOMPARE(result.categoryBreakdown.first().totalSize, largest);
        QCOMPARE(result.extensionStats.value("log").totalSize, largest);
        QCOMPARE(result.depthDistribution.at(2).totalSize, largest);
        QCOMPARE(result.insights.size(), 1);
        QCOMPARE(result.insights.first().type, InsightType::largeCache);
        QCOMPARE(result.insights.first().affectedSize, largest);

        const FolderInfo tree = recordBuild(m_dir->path()).tree();
        QCOMPARE(tree.totalSize, largest);
        QCOMPARE(tree.fileCount, 3);
        for (const FolderInfo& child : tree.childFolders)
            QCOMPARE(child.totalSize, largest);
        QVERIFY(tree.directFilesSize() >= 0);
    }

    // A modification time past what milliseconds hold (tmpfs keeps 2^62 seconds) is held at the
    // latest date, not wrapped round to 1970.
    void latestModificationTimeDoesNotWrap() {
        const timespec times[2] = {{qint64(1) << 62, 0}, {qint64(1) << 62, 0}};
        const QByteArray path = QFile::encodeName(m_dir->filePath("b/three.log"));
        if (::utimensat(AT_FDCWD, path.constData(), times, 0) != 0)
            QSKIP("this file system cannot hold a modification time of 2^62 seconds");
        const AnalysisResult result = recordScan(m_dir->path()).result();
        const auto file =
            std::find_if(result.largestFiles.begin(), result.largestFiles.end(),
                         [](const FileInfo& file) { return file.name == u"three.log"; });
        QVERIFY(file != result.largestFiles.end());
        QVERIFY(file->modificationDate > QDateTime::currentDateTimeUtc());
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(HugeSizesTest)
#include "HugeSizesTest.moc"
