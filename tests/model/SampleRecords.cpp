#include "SampleRecords.h"

#include <limits>

namespace tessarine::testing {

namespace {

// Beyond 2^53, where a double would lose the last digit.
constexpr qint64 beyondDoubles = (qint64(1) << 53) + 1;

const QString oddPath = QStringLiteral("/tmp/odd \"name\"\\ with\nnewline\tand/\u00e9t\u00e9/") +
                        QString::fromUtf8("\xF0\x9F\x98\x80 \x01 \xFF.txt");

FileInfo file(const QString& path, qint64 size, const QString& extension, FileCategory category) {
    FileInfo info;
    info.path = path;
    info.name = path.section(u'/', -1);
    info.size = size;
    info.fileExtension = extension;
    info.category = category;
    info.depth = 10;
    info.modificationDate = QDateTime(QDate(2023, 12, 31), QTime(23, 59, 59), Qt::UTC);
    return info;
}

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

} // namespace

AnalysisResult fullResult() {
    AnalysisResult result;
    result.scanDate = QDateTime(QDate(2024, 3, 5), QTime(14, 7, 9), Qt::UTC);
    result.rootPath = oddPath;
    result.rootName = QStringLiteral("root \"name\"");
    result.totalSize = beyondDoubles;
    result.fileCount = std::numeric_limits<qint64>::max();
    result.folderCount = 7;
    result.maxDepth = 10;
    result.scanDuration = 12.345;

    FileInfo photo = file(QStringLiteral("/tmp/root/photo.JPG"), beyondDoubles,
                          QStringLiteral("jpg"), FileCategory::images);
    FileInfo folderItem = file(QStringLiteral("/tmp/root/dir"), 0, QString(), FileCategory::other);
    folderItem.isDirectory = true;
    folderItem.modificationDate = distantPast();
    FileInfo odd = file(oddPath, std::numeric_limits<qint64>::min(), QStringLiteral("txt"),
                        FileCategory::documents);
    result.largestFiles = {photo, folderItem, odd};

    CategoryStats images;
    images.category = FileCategory::images;
    images.fileCount = 1;
    images.totalSize = beyondDoubles;
    images.extensions = {QStringLiteral("jpg"), QStringLiteral("jpeg")};
    CategoryStats design;
    design.category = FileCategory::design;
    design.fileCount = 2;
    design.totalSize = 3;
    design.extensions = {QString(), QStringLiteral("blend")};
    result.categoryBreakdown = {images, design};

    result.depthDistribution = {{1, {2, 3, 4}}, {2, {5, 6, 7}}, {10, {8, 9, beyondDoubles}}};

    ExtensionStats jpg;
    jpg.ext = QStringLiteral("jpg");
    jpg.category = FileCategory::images;
    jpg.fileCount = 1;
    jpg.totalSize = beyondDoubles;
    ExtensionStats none;
    none.fileCount = 4;
    none.totalSize = 11;
    result.extensionStats = {{jpg.ext, jpg}, {none.ext, none}};

    PatternInsight cache;
    cache.type = InsightType::largeCache;
    cache.title = QStringLiteral("Large Cache");
    cache.description = QStringLiteral("Cache files use 1.2 GB");
    cache.affectedSize = 1'200'000'000;
    cache.affectedCount = 12;
    cache.paths = {QStringLiteral("/tmp/root/.cache"), oddPath};
    result.insights = {cache};

    result.folderTree = folderTree();
    return result;
}

} // namespace tessarine::testing
