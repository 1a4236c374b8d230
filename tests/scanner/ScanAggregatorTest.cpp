#include "scanner/ScanAggregator.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

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

} // namespace

class ScanAggregatorTest : public QObject {
    Q_OBJECT

private slots:
    // Every breakdown adds up to the totals; categories largest first, one of empty files after
    // every other.
    void breaksDownEveryItem() {
        ScanAggregator aggregator;
        for (const FileInfo& item :
             {file("README", 10, 1), file("notes.", 5, 1), folder(1), file("data.weird", 20, 2),
              file("empty.PNG", 0, 1), folder(2), file("backup.TAR", 300, 3), folder(2),
              file("more.tar", 200, 3)})
            aggregator.add(item);
        const AnalysisResult result = aggregator.finish();

        QCOMPARE(result.totalSize, 535);
        QCOMPARE(result.fileCount, 6);
        QCOMPARE(result.folderCount, 3);
        QCOMPARE(result.maxDepth, 3);
        QCOMPARE(
            result.depthDistribution,
            (std::map<qint64, DepthStats>{{1, {3, 1, 15}}, {2, {1, 2, 20}}, {3, {2, 0, 500}}}));
        QCOMPARE(result.extensionStats.size(), 4);
        QCOMPARE(result.extensionStats.value(QString()).totalSize, 15);
        QCOMPARE(result.extensionStats.value("tar").totalSize, 500);
        QCOMPARE(result.extensionStats.value("tar").fileCount, 2);
        for (const auto& [ext, stats] : result.extensionStats.asKeyValueRange())
            QCOMPARE(stats.ext, ext);

        QCOMPARE(result.categoryBreakdown.size(), 3);
        QCOMPARE(result.categoryBreakdown[0].category, FileCategory::archives);
        QCOMPARE(result.categoryBreakdown[0].extensions, QSet<QString>{"tar"});
        QCOMPARE(result.categoryBreakdown[1].category, FileCategory::other);
        QCOMPARE(result.categoryBreakdown[1].extensions, (QSet<QString>{"", "weird"}));
        QCOMPARE(result.categoryBreakdown[1].fileCount, 3);
        QCOMPARE(result.categoryBreakdown[1].totalSize, 35);
        QCOMPARE(result.categoryBreakdown[2].category, FileCategory::images);
        QCOMPARE(result.categoryBreakdown[2].totalSize, 0);
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
};

QTEST_GUILESS_MAIN(ScanAggregatorTest)
#include "ScanAggregatorTest.moc"
