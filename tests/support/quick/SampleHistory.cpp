#include "SampleHistory.h"

#include "storage/PersistenceService.h"

#include <QTest>

namespace tessarine::testing {

namespace {

CategoryStats categoryStats(FileCategory category, qint64 files, qint64 size) {
    CategoryStats stats;
    stats.category = category;
    stats.fileCount = files;
    stats.totalSize = size;
    return stats;
}

FileInfo largeFile(const QString& rootPath, const QString& name, qint64 size,
                   FileCategory category) {
    FileInfo file;
    file.path = rootPath + u'/' + name;
    file.name = name;
    file.size = size;
    file.fileExtension = name.section(u'.', -1);
    file.category = category;
    file.depth = 1;
    file.modificationDate = QDateTime(QDate(2025, 3, 14), QTime(9, 30), Qt::UTC);
    return file;
}

} // namespace

AnalysisResult sampleResult(const QString& rootPath, const QDateTime& scanDate) {
    AnalysisResult result;
    result.rootPath = rootPath;
    result.rootName = rootPath == u"/" ? rootPath : rootPath.section(u'/', -1);
    result.scanDate = scanDate;
    result.fileCount = 48210;
    result.folderCount = 5130;
    result.maxDepth = 14;
    result.scanDuration = 12.4;
    result.categoryBreakdown = {categoryStats(FileCategory::videos, 120, 18'400'000'000),
                                categoryStats(FileCategory::images, 9800, 6'200'000'000),
                                categoryStats(FileCategory::code, 30100, 1'100'000'000),
                                categoryStats(FileCategory::documents, 8190, 900'000'000)};
    for (const CategoryStats& stats : result.categoryBreakdown)
        result.totalSize += stats.totalSize;
    result.largestFiles = {
        largeFile(rootPath, QStringLiteral("holiday.mov"), 4'100'000'000, FileCategory::videos),
        largeFile(rootPath, QStringLiteral("archive.zip"), 2'300'000'000, FileCategory::archives)};
    result.depthDistribution[1] = DepthStats{200, 40, 9'000'000'000};
    result.depthDistribution[2] = DepthStats{48010, 5090, 17'600'000'000};
    return result;
}

void storeSampleHistory(PersistenceService& store, int count) {
    const QDateTime newest(QDate(2025, 6, 1), QTime(10, 0), Qt::UTC);
    for (int i = 0; i < count; ++i) {
        const QString root =
            i == 0 ? QStringLiteral("/") : QStringLiteral("/Users/ann/Project %1").arg(i);
        QVERIFY(!store.save(sampleResult(root, newest.addDays(-i))));
    }
}

} // namespace tessarine::testing
