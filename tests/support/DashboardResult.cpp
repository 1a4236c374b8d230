#include "DashboardResult.h"

#include "model/FileCategory.h"
#include "model/PathNames.h"

#include <algorithm>

namespace tessarine::testing {

namespace {

const QStringList extensionNames = {
    "jpg",  "mp4", "mp3",  "pdf",  "swift", "zip", "app", "plist",  "json", "ttf",   "blend", "dat",
    "png",  "mov", "wav",  "docx", "cpp",   "tar", "dmg", "log",    "csv",  "otf",   "obj",   "bin",
    "heic", "mkv", "flac", "txt",  "py",    "gz",  "pkg", "db",     "xml",  "woff",  "fbx",   "tmp",
    "gif",  "avi", "m4a",  "md",   "js",    "7z",  "exe", "sqlite", "yaml", "woff2", "stl",   ""};

} // namespace

AnalysisResult plainResult(const QString& root, const QDateTime& scanDate, qint64 totalSize) {
    AnalysisResult result;
    result.rootPath = root;
    result.rootName = lastPathComponent(root); // "/" for the root, as a scan names it
    result.scanDate = scanDate;
    result.totalSize = totalSize;
    return result;
}

AnalysisResult dashboardResult(const QString& root, int categories, int extensions, int depths,
                               int files) {
    AnalysisResult result = plainResult(root, QDateTime::currentDateTimeUtc().addSecs(-3600), 0);
    result.scanDuration = 4.2;
    const auto& kinds = allFileCategories();
    categories = std::clamp(categories, 1, int(kinds.size()));
    extensions = std::clamp(extensions, categories, int(extensionNames.size()));

    // Extension i belongs to category i mod categories and weighs less the later it comes.
    for (int i = 0; i < extensions; ++i) {
        ExtensionStats stats;
        stats.ext = extensionNames.at(i);
        stats.category = kinds.at(std::size_t(i % categories));
        stats.fileCount = 40 + 17 * (extensions - i);
        stats.totalSize = qint64(9'000'000'000) / (i + 2) + 1'000'000 * i;
        result.extensionStats.insert(stats.ext, stats);
        result.totalSize += stats.totalSize;
        result.fileCount += stats.fileCount;
    }
    for (int c = 0; c < categories; ++c) {
        CategoryStats stats;
        stats.category = kinds.at(std::size_t(c));
        for (const ExtensionStats& ext : std::as_const(result.extensionStats))
            if (ext.category == stats.category) {
                stats.totalSize += ext.totalSize;
                stats.fileCount += ext.fileCount;
                stats.extensions.insert(ext.ext);
            }
        result.categoryBreakdown.append(stats);
    }
    std::stable_sort(
        result.categoryBreakdown.begin(), result.categoryBreakdown.end(),
        [](const CategoryStats& a, const CategoryStats& b) { return a.totalSize > b.totalSize; });

    for (int depth = 0; depth < depths; ++depth) {
        const qint64 peakDistance = std::abs(depth - 4);
        DepthStats stats{300 / (1 + peakDistance * peakDistance) + 5, 20 + 3 * depth,
                         qint64(500'000'000) / (1 + peakDistance)};
        result.depthDistribution[depth] = stats;
        result.folderCount += stats.folderCount;
    }
    result.maxDepth = std::max(depths - 1, 0);

    for (int i = 0; i < files; ++i) {
        FileInfo file;
        const QString ext = extensionNames.at(i % extensions);
        file.depth = 1 + i % std::max(depths - 1, 1);
        QString folder = root;
        for (qint64 level = 1; level < file.depth; ++level)
            folder += QStringLiteral("/Folder %1").arg(level);
        file.name = QStringLiteral("File %1%2").arg(i + 1).arg(ext.isEmpty() ? "" : "." + ext);
        file.path = folder + u'/' + file.name;
        file.fileExtension = ext;
        file.category = categoryForExtension(ext);
        file.size = qint64(2'000'000'000) / (i + 1);
        file.modificationDate = QDateTime::currentDateTimeUtc().addDays(-3 * i - 1);
        result.largestFiles.append(file);
    }
    return result;
}

QList<PatternInsight> sampleInsights() {
    PatternInsight cache;
    cache.type = InsightType::largeCache;
    cache.title = QStringLiteral("Large cache files");
    cache.description = QStringLiteral("Found in 3 places");
    cache.affectedSize = 150'000'000;
    cache.affectedCount = 3;
    PatternInsight empty = cache;
    empty.type = InsightType::emptyFolders;
    empty.title = QStringLiteral("Empty folders");
    empty.affectedSize = 0;
    return {cache, empty};
}

} // namespace tessarine::testing
