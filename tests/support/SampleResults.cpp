#include "SampleResults.h"

#include <limits>

namespace tessarine::testing {

namespace {

// Beyond 2^53, where a double would lose the last digit.
constexpr qint64 beyondDoubles = (qint64(1) << 53) + 1;

const QString oddPath = QStringLiteral("/tmp/odd \"name\"\\ with\nnewline\tand/\u00e9t\u00e9/") +
                        QString::fromUtf8("\xF0\x9F\x98\x80 \x01 \xFF.txt");

FolderInfo folder(const QString& path, qint64 totalSize, qint64 depth, FolderColor color) {
    FolderInfo info;
    info.location = FolderPath(path);
    info.name = path.section(u'/', -1);
    info.totalSize = totalSize;
    info.fileCount = depth + 1;
    info.depth = depth;
    info.color = color;
    return info;
}

FolderInfo folderTree() {
    FolderInfo root = folder(QStringLiteral("/tmp/root"), beyondDoubles, 0, FolderColor::blue);
    FolderInfo inner = folder(QStringLiteral("/tmp/root/a"), 3000, 1, FolderColor::green);
    inner.childFolders.push_back(
        folder(QStringLiteral("/tmp/root/a/b"), 1000, 2, FolderColor::cyan));
    root.childFolders.push_back(std::move(inner));
    root.childFolders.push_back(folder(QStringLiteral("/tmp/root/c"), 5, 1, FolderColor::mint));
    return root;
}

CategoryStats category(FileCategory kind, qint64 fileCount, qint64 totalSize,
                       const QSet<QString>& extensions) {
    CategoryStats stats;
    stats.category = kind;
    stats.fileCount = fileCount;
    stats.totalSize = totalSize;
    stats.extensions = extensions;
    return stats;
}

ExtensionStats extension(const QString& ext, FileCategory kind, qint64 fileCount,
                         qint64 totalSize) {
    ExtensionStats stats;
    stats.ext = ext;
    stats.category = kind;
    stats.fileCount = fileCount;
    stats.totalSize = totalSize;
    return stats;
}

} // namespace

FileInfo sampleFile(const QString& path, qint64 size, const QString& extension,
                    FileCategory category) {
    FileInfo file;
    file.path = path;
    file.name = path.section(u'/', -1);
    file.size = size;
    file.fileExtension = extension;
    file.category = category;
    file.depth = path.count(u'/') - 2;
    file.modificationDate = QDateTime(QDate(2023, 12, 31), QTime(23, 59, 59), Qt::UTC);
    return file;
}

AnalysisResult sampleResult(const QDateTime& scanDate) {
    AnalysisResult result;
    result.scanDate = scanDate;
    result.rootPath = oddPath;
    result.rootName = QStringLiteral("root \"name\"");
    result.totalSize = beyondDoubles;
    result.fileCount = std::numeric_limits<qint64>::max();
    result.folderCount = 7;
    result.maxDepth = 10;
    result.scanDuration = 12.345;

    FileInfo folderItem =
        sampleFile(QStringLiteral("/tmp/root/dir"), 0, QString(), FileCategory::other);
    folderItem.isDirectory = true;
    folderItem.modificationDate = distantPast();
    result.largestFiles = {sampleFile(QStringLiteral("/tmp/root/photo.JPG"), beyondDoubles,
                                      QStringLiteral("jpg"), FileCategory::images),
                           folderItem,
                           sampleFile(oddPath, std::numeric_limits<qint64>::min(),
                                      QStringLiteral("txt"), FileCategory::documents)};

    result.categoryBreakdown = {
        category(FileCategory::images, 1, beyondDoubles, {"jpg", "jpeg"}),
        category(FileCategory::design, 2, 3, {QString(), QStringLiteral("blend")})};
    result.depthDistribution = {{1, {2, 3, 4}}, {2, {5, 6, 7}}, {10, {8, 9, beyondDoubles}}};
    result.extensionStats = {
        {"jpg", extension(QStringLiteral("jpg"), FileCategory::images, 1, beyondDoubles)},
        {QString(), extension(QString(), FileCategory::other, 4, 11)}};

    PatternInsight cache;
    cache.type = InsightType::largeCache;
    cache.title = QStringLiteral("Large Cache");
    cache.description = QStringLiteral("Cache files use 1.2 GB");
    cache.affectedSize = 1'200'000'000;
    cache.affectedCount = 12;
    cache.paths = {QStringLiteral("/tmp/root/.cache"), oddPath};
    result.insights = {cache};

    result.folderTree = folderTree();
    result.importSource = ImportSource{QStringLiteral("ncdu 1.18"),
                                       QStringLiteral("srv.json"),
                                       QDateTime(QDate(2024, 3, 6), QTime(8, 0), Qt::UTC),
                                       {QStringLiteral("modificationDate")}};
    return result;
}

} // namespace tessarine::testing
