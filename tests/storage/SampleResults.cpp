#include "SampleResults.h"

#include <QTimeZone>

namespace tessarine::testing {

FileInfo sampleFile(const QString& path, qint64 size, const QString& extension,
                    FileCategory category) {
    FileInfo file;
    file.path = path;
    file.name = path.section(u'/', -1);
    file.size = size;
    file.fileExtension = extension;
    file.category = category;
    file.depth = path.count(u'/') - 2;
    file.modificationDate = QDateTime(QDate(2024, 3, 5), QTime(14, 7, 9), QTimeZone::utc());
    return file;
}

AnalysisResult sampleResult(const QDateTime& scanDate) {
    AnalysisResult result;
    result.scanDate = scanDate;
    result.rootPath = QStringLiteral("/home/ada/My \"Projects\"");
    result.rootName = QStringLiteral("My \"Projects\"");
    result.totalSize = 3000;
    result.fileCount = 2;
    result.folderCount = 1;
    result.maxDepth = 2;
    result.scanDuration = 0.25;

    FileInfo photo = sampleFile(result.rootPath + QStringLiteral("/pics/été, 2023.jpg"), 2000,
                                QStringLiteral("jpg"), FileCategory::images);
    FileInfo notes = sampleFile(result.rootPath + QStringLiteral("/README"), 1000, QString(),
                                FileCategory::other);
    result.largestFiles = {photo, notes};

    CategoryStats images;
    images.category = FileCategory::images;
    images.fileCount = 1;
    images.totalSize = 2000;
    images.extensions = {QStringLiteral("jpg")};
    CategoryStats other;
    other.category = FileCategory::other;
    other.fileCount = 1;
    other.totalSize = 1000;
    other.extensions = {QString()};
    result.categoryBreakdown = {images, other};

    ExtensionStats jpg;
    jpg.ext = QStringLiteral("jpg");
    jpg.category = FileCategory::images;
    jpg.fileCount = 1;
    jpg.totalSize = 2000;
    ExtensionStats none;
    none.fileCount = 1;
    none.totalSize = 1000;
    result.extensionStats = {{jpg.ext, jpg}, {none.ext, none}};

    result.depthDistribution = {{1, DepthStats{1, 1, 1000}}, {2, DepthStats{1, 0, 2000}}};

    PatternInsight oldFiles;
    oldFiles.type = InsightType::oldFiles;
    oldFiles.title = QStringLiteral("Old Files");
    oldFiles.description = QStringLiteral("2 files have not been modified in over a year");
    oldFiles.affectedSize = 3000;
    oldFiles.affectedCount = 2;
    result.insights = {oldFiles};
    return result;
}

} // namespace tessarine::testing
