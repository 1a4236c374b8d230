#pragma once

#include "model/FileCategory.h"
#include "model/FolderColor.h"
#include "model/FolderInfoList.h"
#include "model/FolderPath.h"
#include "model/InsightType.h"
#include "model/RecordId.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace tessarine {

// The date recorded for an item whose modification date is unknown: 0001-01-01T00:00:00Z.
QDateTime distantPast();

// One scanned file or directory.
struct FileInfo {
    QUuid id = makeRecordId();
    QString path;
    QString name;
    qint64 size = 0;
    QString fileExtension; // lowercased, without the dot; empty when there is none
    FileCategory category = FileCategory::other;
    qint64 depth = 0; // path components below the scanned folder
    QDateTime modificationDate;
    bool isDirectory = false;

    bool operator==(const FileInfo&) const = default;
    // Files are ordered by size alone, so that "largest first" sorts compare one field.
    friend bool operator<(const FileInfo& a, const FileInfo& b) { return a.size < b.size; }
};

// Counters of one depth.
struct DepthStats {
    qint64 fileCount = 0;
    qint64 folderCount = 0;
    qint64 totalSize = 0;

    bool operator==(const DepthStats&) const = default;
};

// Counters of one file category.
struct CategoryStats {
    QUuid id = makeRecordId();
    FileCategory category = FileCategory::other;
    qint64 fileCount = 0;
    qint64 totalSize = 0;
    QSet<QString> extensions; // may hold the empty extension

    bool operator==(const CategoryStats&) const = default;
};

// Counters of one lowercased extension; the empty ext stands for files without one.
struct ExtensionStats {
    QUuid id = makeRecordId();
    QString ext;
    FileCategory category = FileCategory::other;
    qint64 fileCount = 0;
    qint64 totalSize = 0;

    // ".pdf", or "No Extension" for the empty ext.
    QString displayName() const;

    bool operator==(const ExtensionStats&) const = default;
};

// One detected pattern, shown as an insight card.
struct PatternInsight {
    QUuid id = makeRecordId();
    InsightType type = InsightType::nodeModules;
    QString title;
    QString description;
    qint64 affectedSize = 0;
    qint64 affectedCount = 0;
    QStringList paths;

    bool operator==(const PatternInsight&) const = default;
};

// One node of the folder tree: a folder with the totals of its whole subtree.
struct FolderInfo {
    QUuid id = makeRecordId();
    // Shares its parent's path: a node holds its name, not its whole path (see FolderPath).
    FolderPath location;
    QString name;
    qint64 totalSize = 0;
    qint64 fileCount = 0;
    FolderInfoList childFolders;
    qint64 depth = 0;
    FolderColor color = FolderColor::blue;

    // The full path of the folder, spelled out from its location.
    QString path() const { return location.toString(); }
    // This folder followed by its descendants, depth first, parents before children, children in
    // list order. Walks with an explicit stack so that arbitrarily deep trees are safe.
    std::vector<const FolderInfo*> flattened() const;
    // Bytes of the files lying directly in this folder.
    qint64 directFilesSize() const;

    bool operator==(const FolderInfo&) const = default;
};

// One finished scan.
struct AnalysisResult {
    QUuid id = makeRecordId();
    QDateTime scanDate;
    QString rootPath;
    QString rootName;
    qint64 totalSize = 0;
    qint64 fileCount = 0;
    qint64 folderCount = 0;
    qint64 maxDepth = 0;
    double scanDuration = 0; // seconds
    QList<CategoryStats> categoryBreakdown;
    QList<FileInfo> largestFiles;
    std::map<qint64, DepthStats> depthDistribution;
    QHash<QString, ExtensionStats> extensionStats; // keyed by ExtensionStats::ext
    QList<PatternInsight> insights;
    std::optional<FolderInfo> folderTree;

    // The extension entries, largest totalSize first.
    QList<ExtensionStats> sortedExtensions() const;
    // The depth entries, smallest depth first.
    std::vector<std::pair<qint64, DepthStats>> sortedDepths() const;
    // scanDuration as "250 ms", "12.3 seconds" or "2m 5s".
    QString formattedDuration() const;

    bool operator==(const AnalysisResult&) const = default;
};

} // namespace tessarine
