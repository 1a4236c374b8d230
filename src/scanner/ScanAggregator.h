#pragma once

#include "model/Records.h"
#include "scanner/LargestFiles.h"

#include <QString>

#include <array>
#include <unordered_map>
#include <vector>

namespace tessarine {

// Running counters of one lowercased extension. Lives at a fixed address for the whole scan, so
// the analysis can remember it per raw extension and skip the lookup by text.
struct ExtensionTally {
    QString ext;
    FileCategory category = FileCategory::other; // of the first file met with this extension
    qint64 fileCount = 0;
    qint64 totalSize = 0;
    quint16 categoriesHoldingExt = 0; // bit per category whose extension set already holds ext
};

// Folds the items of one scan into its figures: totals, categories, extensions, depths and the
// largest files. Items may come as full records (add) or, from the analysis pass, as bare
// figures with a record made only when the largest-files list keeps it. Memory is bounded by the
// distinct extensions and depths, whatever the number of items.
class ScanAggregator {
public:
    ScanAggregator();

    void add(const FileInfo& item);

    void addFolder(qint64 depth);
    // The tally of a lowercased extension, made (with `category`) the first time it is asked for.
    ExtensionTally& tally(const QString& ext, FileCategory category);
    // `makeRecord` builds the file's FileInfo; it is called only if the file ranks among the
    // largest so far.
    template <typename MakeRecord>
    void addFile(qint64 size, qint64 depth, ExtensionTally& ext, FileCategory category,
                 MakeRecord&& makeRecord) {
        countFile(size, depth, ext, category);
        if (m_largest.wouldKeep(size))
            m_largest.add(makeRecord());
    }

    qint64 fileCount() const { return m_fileCount; }
    qint64 folderCount() const { return m_folderCount; }
    qint64 totalSize() const { return m_totalSize; }

    // The figures of the result: totals, breakdowns, largest files and insights. Identity, dates
    // and the root are the caller's to fill in.
    AnalysisResult finish() const;

private:
    void countFile(qint64 size, qint64 depth, ExtensionTally& ext, FileCategory category);
    DepthStats& depthEntry(qint64 depth);
    QList<CategoryStats> categoryBreakdown() const;
    QHash<QString, ExtensionStats> extensionStats() const;
    std::map<qint64, DepthStats> depthDistribution() const;

    std::array<CategoryStats, 12> m_categories;
    std::unordered_map<QString, ExtensionTally> m_extensions;
    std::vector<DepthStats> m_depths; // indexed by depth; untouched depths stay all zero
    LargestFiles m_largest;
    qint64 m_totalSize = 0;
    qint64 m_fileCount = 0;
    qint64 m_folderCount = 0;
    qint64 m_maxDepth = 0;
};

} // namespace tessarine
