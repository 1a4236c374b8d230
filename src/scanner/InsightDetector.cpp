#include "scanner/InsightDetector.h"

#include "model/Format.h"
#include "model/SaturatingSum.h"

#include <array>
#include <optional>

namespace tessarine {

namespace {

// Above this many JavaScript and JSON files taking more than a tenth of the bytes, the folder
// probably holds installed packages rather than the user's own code.
constexpr qint64 nodeModulesMinimumCount = 1001;
constexpr double nodeModulesMinimumShare = 0.1;
// Files below this depth are "deeply nested"; past this many of them it is worth a mention.
constexpr qint64 deepNestingDepth = 10;
constexpr qint64 deepNestingMinimumCount = 101;
// Cache and temporary files matter once they take more than 100 MB together.
constexpr qint64 cacheMinimumSize = 100'000'001;

PatternInsight makeInsight(InsightType type, const QString& title, const QString& description,
                           qint64 size, qint64 count) {
    PatternInsight insight;
    insight.type = type;
    insight.title = title;
    insight.description = description;
    insight.affectedSize = size;
    insight.affectedCount = count;
    return insight;
}

std::optional<PatternInsight> nodeModules(const QHash<QString, ExtensionStats>& extensions,
                                          qint64 totalSize) {
    const auto js = extensions.constFind(QStringLiteral("js"));
    const auto json = extensions.constFind(QStringLiteral("json"));
    if (js == extensions.cend() || json == extensions.cend() || totalSize <= 0)
        return std::nullopt;
    const qint64 count = js->fileCount + json->fileCount;
    const qint64 size = saturatingAdd(js->totalSize, json->totalSize);
    if (count < nodeModulesMinimumCount ||
        double(size) / double(totalSize) <= nodeModulesMinimumShare)
        return std::nullopt;
    return makeInsight(
        InsightType::nodeModules, QStringLiteral("Possible Node Modules"),
        QStringLiteral(
            "Large number of JavaScript/JSON files detected, possibly from node_modules"),
        size, count);
}

std::optional<PatternInsight> deepNesting(const std::map<qint64, DepthStats>& depths) {
    qint64 count = 0;
    qint64 size = 0;
    for (auto it = depths.upper_bound(deepNestingDepth); it != depths.end(); ++it) {
        count += it->second.fileCount;
        addSaturating(size, it->second.totalSize);
    }
    if (count < deepNestingMinimumCount)
        return std::nullopt;
    // There is no insight kind of its own for nesting; it is grouped with the package folders
    // that usually cause it.
    return makeInsight(InsightType::nodeModules, QStringLiteral("Deeply Nested Files"),
                       QStringLiteral("Found %1 files at depth > 10 levels").arg(count), size,
                       count);
}

std::optional<PatternInsight> largeCache(const QHash<QString, ExtensionStats>& extensions) {
    static const std::array<QString, 4> cacheExtensions{
        QStringLiteral("cache"), QStringLiteral("tmp"), QStringLiteral("temp"),
        QStringLiteral("log")};
    qint64 count = 0;
    qint64 size = 0;
    for (const QString& ext : cacheExtensions) {
        if (const auto entry = extensions.constFind(ext); entry != extensions.cend()) {
            count += entry->fileCount;
            addSaturating(size, entry->totalSize);
        }
    }
    if (size < cacheMinimumSize)
        return std::nullopt;
    return makeInsight(InsightType::largeCache, QStringLiteral("Cache Files Detected"),
                       QStringLiteral("Found %1 cache/temp files totaling %2")
                           .arg(QString::number(count), format::byteCount(size)),
                       size, count);
}

} // namespace

QList<PatternInsight> detectInsights(const QHash<QString, ExtensionStats>& extensions,
                                     const std::map<qint64, DepthStats>& depths, qint64 totalSize) {
    QList<PatternInsight> insights;
    for (std::optional<PatternInsight> insight :
         {nodeModules(extensions, totalSize), deepNesting(depths), largeCache(extensions)}) {
        if (insight)
            insights.append(std::move(*insight));
    }
    return insights;
}

} // namespace tessarine
