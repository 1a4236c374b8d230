#include "scanner/ScanAggregator.h"

#include "model/SaturatingSum.h"
#include "scanner/InsightDetector.h"

#include <algorithm>

namespace tessarine {

ScanAggregator::ScanAggregator() {
    for (FileCategory category : allFileCategories())
        m_categories[std::size_t(category)].category = category;
}

void ScanAggregator::add(const FileInfo& item) {
    if (item.isDirectory) {
        addFolder(item.depth);
        return;
    }
    addFile(item.size, item.depth, tally(item.fileExtension.toLower(), item.category),
            item.category, [&item] { return item; });
}

void ScanAggregator::addFolder(qint64 depth) {
    ++m_folderCount;
    ++depthEntry(depth).folderCount;
}

ExtensionTally& ScanAggregator::tally(const QString& ext, FileCategory category) {
    auto [entry, made] = m_extensions.try_emplace(ext);
    if (made) {
        entry->second.ext = ext;
        entry->second.category = category;
    }
    return entry->second;
}

void ScanAggregator::countFile(qint64 size, qint64 depth, ExtensionTally& ext,
                               FileCategory category) {
    ++m_fileCount;
    addSaturating(m_totalSize, size);
    CategoryStats& stats = m_categories[std::size_t(category)];
    ++stats.fileCount;
    addSaturating(stats.totalSize, size);
    const quint16 categoryBit = quint16(1u << unsigned(category));
    if (!(ext.categoriesHoldingExt & categoryBit)) {
        ext.categoriesHoldingExt |= categoryBit;
        stats.extensions.insert(ext.ext);
    }
    ++ext.fileCount;
    addSaturating(ext.totalSize, size);
    DepthStats& level = depthEntry(depth);
    ++level.fileCount;
    addSaturating(level.totalSize, size);
}

DepthStats& ScanAggregator::depthEntry(qint64 depth) {
    const auto index = std::size_t(std::max<qint64>(depth, 0));
    m_maxDepth = std::max(m_maxDepth, qint64(index));
    if (index >= m_depths.size())
        m_depths.resize(index + 1);
    return m_depths[index];
}

AnalysisResult ScanAggregator::finish() const {
    AnalysisResult result;
    result.totalSize = m_totalSize;
    result.fileCount = m_fileCount;
    result.folderCount = m_folderCount;
    result.maxDepth = m_maxDepth;
    result.categoryBreakdown = categoryBreakdown();
    result.largestFiles = m_largest.sorted();
    result.depthDistribution = depthDistribution();
    result.extensionStats = extensionStats();
    result.insights = detectInsights(result.extensionStats, result.depthDistribution, m_totalSize);
    return result;
}

QList<CategoryStats> ScanAggregator::categoryBreakdown() const {
    QList<CategoryStats> used;
    std::copy_if(m_categories.begin(), m_categories.end(), std::back_inserter(used),
                 [](const CategoryStats& stats) { return stats.fileCount > 0; });
    std::stable_sort(used.begin(), used.end(), [](const CategoryStats& a, const CategoryStats& b) {
        return a.totalSize > b.totalSize;
    });
    return used;
}

QHash<QString, ExtensionStats> ScanAggregator::extensionStats() const {
    QHash<QString, ExtensionStats> stats;
    stats.reserve(qsizetype(m_extensions.size()));
    for (const auto& [ext, tally] : m_extensions) {
        ExtensionStats entry;
        entry.ext = ext;
        entry.category = tally.category;
        entry.fileCount = tally.fileCount;
        entry.totalSize = tally.totalSize;
        stats.insert(ext, entry);
    }
    return stats;
}

std::map<qint64, DepthStats> ScanAggregator::depthDistribution() const {
    std::map<qint64, DepthStats> depths;
    for (std::size_t depth = 0; depth < m_depths.size(); ++depth) {
        const DepthStats& level = m_depths[depth];
        if (level.fileCount > 0 || level.folderCount > 0)
            depths.emplace_hint(depths.end(), qint64(depth), level);
    }
    return depths;
}

} // namespace tessarine
