#include "scanner/ScanAggregator.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <numeric>

using namespace tessarine;

namespace {

FileInfo file(const QString& name, qint64 size, qint64 depth) {
    FileInfo info;
    info.name = name;
    info.path = "/root/" + name;
    info.size = size;
    const qsizetype dot = name.lastIndexOf('.');
    info.fileExtension = dot > 0 ? name.sliced(dot + 1).toLower() : QString();
    info.category = categoryForExtension(info.fileExtension);
    info.depth = depth;
    info.modificationDate = distantPast();
    return info;
}

FileInfo folder(qint64 depth) {
    FileInfo info;
    info.isDirectory = true;
    info.depth = depth;
    return info;
}

QList<QUuid> ids(const QList<FileInfo>& files) {
    QList<QUuid> list;
    for (const FileInfo& info : files)
        list.append(info.id);
    return list;
}

template <typename Values, typename Field> qint64 sum(const Values& values, Field field) {
    return std::accumulate(values.begin(), values.end(), qint64(0),
                           [&](qint64 total, const auto& value) { return total + field(value); });
}

} // namespace

class ScanAggregatorTest : public QObject {
    Q_OBJECT

private slots:
    void totalsAgreeAcrossEveryBreakdown() {
        static const char* const names[] = {"a.jpg",  "b.JPG", "c",  "d.tar", "e.js",
                                            "f.json", "g.log", "h.", "i.Mp4", "j.weird"};
        QRandomGenerator random(7);
        ScanAggregator aggregator;
        qint64 expectedSize = 0;
        qint64 expectedFolders = 0;
        for (int i = 0; i < 3000; ++i) {
            const qint64 depth = 1 + random.bounded(14);
            if (random.bounded(6) == 0) {
                aggregator.add(folder(depth));
                ++expectedFolders;
                continue;
            }
            const qint64 size = random.bounded(2) ? random.bounded(100000) : 0;
            aggregator.add(file(QString::fromLatin1(names[random.bounded(10)]), size, depth));
            expectedSize += size;
        }
        const AnalysisResult result = aggregator.finish();

        QCOMPARE(result.totalSize, expectedSize);
        QCOMPARE(result.folderCount, expectedFolders);
        QCOMPARE(result.fileCount + result.folderCount, 3000);
        const auto fileCountOf = [](const auto& stats) { return stats.fileCount; };
        const auto sizeOf = [](const auto& stats) { return stats.totalSize; };
        QList<DepthStats> depths;
        for (const auto& [depth, stats] : result.depthDistribution)
            depths.append(stats);
        QCOMPARE(sum(result.categoryBreakdown, sizeOf), expectedSize);
        QCOMPARE(sum(result.extensionStats, sizeOf), expectedSize);
        QCOMPARE(sum(depths, sizeOf), expectedSize);
        QCOMPARE(sum(result.categoryBreakdown, fileCountOf), result.fileCount);
        QCOMPARE(sum(result.extensionStats, fileCountOf), result.fileCount);
        QCOMPARE(sum(depths, fileCountOf), result.fileCount);
        QCOMPARE(sum(depths, [](const DepthStats& stats) { return stats.folderCount; }),
                 expectedFolders);
        QCOMPARE(result.maxDepth, result.depthDistribution.rbegin()->first);
        QVERIFY(std::is_sorted(result.categoryBreakdown.begin(), result.categoryBreakdown.end(),
                               [](const CategoryStats& a, const CategoryStats& b) {
                                   return a.totalSize > b.totalSize;
                               }));
        for (const auto& [ext, stats] : result.extensionStats.asKeyValueRange())
            QCOMPARE(stats.ext, ext);
    }

    void largestFilesMatchAStableSortOfAllFiles() {
        // Few distinct sizes, so many files compete for the last places: whoever came first wins,
        // at every count around the points where a bounded list would have to trim itself.
        for (int count : {99, 100, 101, 200, 201, 202, 302, 1000}) {
            ScanAggregator aggregator;
            QList<FileInfo> all;
            QRandomGenerator random{quint32(count)};
            for (int i = 0; i < count; ++i) {
                all.append(file(QStringLiteral("f%1").arg(i), random.bounded(8), 2));
                aggregator.add(all.back());
            }
            std::stable_sort(all.begin(), all.end(),
                             [](const FileInfo& a, const FileInfo& b) { return a.size > b.size; });
            const QList<FileInfo> expected = all.first(std::min<qsizetype>(all.size(), 100));
            QCOMPARE(ids(aggregator.finish().largestFiles), ids(expected));
        }
    }

    void breaksDownExtensionsAndCategories() {
        ScanAggregator aggregator;
        aggregator.add(file("README", 10, 1));
        aggregator.add(file("notes.", 5, 1));
        aggregator.add(file("data.weird", 20, 1));
        aggregator.add(file("empty.PNG", 0, 1));
        aggregator.add(file("backup.TAR", 300, 3));
        aggregator.add(file("more.tar", 200, 3));
        const AnalysisResult result = aggregator.finish();

        QCOMPARE(result.extensionStats.size(), 4);
        QCOMPARE(result.extensionStats.value(QString()).totalSize, 15);
        QCOMPARE(result.extensionStats.value("tar").totalSize, 500);

        // Largest first; a category of empty files still shows, after every non-empty one.
        QCOMPARE(result.categoryBreakdown.size(), 3);
        QCOMPARE(result.categoryBreakdown[0].category, FileCategory::archives);
        QCOMPARE(result.categoryBreakdown[0].extensions, QSet<QString>{"tar"});
        QCOMPARE(result.categoryBreakdown[1].category, FileCategory::other);
        QCOMPARE(result.categoryBreakdown[1].extensions, (QSet<QString>{"", "weird"}));
        QCOMPARE(result.categoryBreakdown[1].fileCount, 3);
        QCOMPARE(result.categoryBreakdown[2].category, FileCategory::images);
        QCOMPARE(result.categoryBreakdown[2].totalSize, 0);
    }
};

QTEST_GUILESS_MAIN(ScanAggregatorTest)
#include "ScanAggregatorTest.moc"
