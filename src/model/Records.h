#pragma once

#include "model/FileCategory.h"
#include "model/FolderColor.h"
#include "model/FolderInfoList.h"
#include "model/FolderPath.h"
#include "model/InsightType.h"
#include "model/RecordId.h"
#include "model/ScanOptions.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace tessarine {

// The date recorded for an item whose modification date is unknown: 0001-01-01T00:00:00Z.
QDateTime distantPast();
// Whether a date says when, rather than standing for "unknown" (invalid, or the distant past).
bool isKnownDate(const QDateTime& date);

// One scanned file or directory.
struct FileInfo {
    Q_GADGET
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(qint64 size MEMBER size)
    Q_PROPERTY(QString fileExtension MEMBER fileExtension)
    Q_PROPERTY(tessarine::FileCategory category MEMBER category)
    Q_PROPERTY(qint64 depth MEMBER depth)
    Q_PROPERTY(QDateTime modificationDate MEMBER modificationDate)
    Q_PROPERTY(bool isDirectory MEMBER isDirectory)

public:
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
    Q_GADGET
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 folderCount MEMBER folderCount)
    Q_PROPERTY(qint64 totalSize MEMBER totalSize)

public:
    qint64 fileCount = 0;
    qint64 folderCount = 0;
    qint64 totalSize = 0;

    bool operator==(const DepthStats&) const = default;
};

// Counters of one file category.
struct CategoryStats {
    Q_GADGET
    Q_PROPERTY(tessarine::FileCategory category MEMBER category)
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 totalSize MEMBER totalSize)

public:
    QUuid id = makeRecordId();
    FileCategory category = FileCategory::other;
    qint64 fileCount = 0;
    qint64 totalSize = 0;
    QSet<QString> extensions; // may hold the empty extension

    bool operator==(const CategoryStats&) const = default;
};

// Counters of one lowercased extension; the empty ext stands for files without one.
struct ExtensionStats {
    Q_GADGET
    Q_PROPERTY(QString ext MEMBER ext)
    Q_PROPERTY(tessarine::FileCategory category MEMBER category)
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 totalSize MEMBER totalSize)
    Q_PROPERTY(QString displayName READ displayName)

public:
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
    Q_GADGET
    Q_PROPERTY(tessarine::InsightType type MEMBER type)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString description MEMBER description)
    Q_PROPERTY(qint64 affectedSize MEMBER affectedSize)
    Q_PROPERTY(qint64 affectedCount MEMBER affectedCount)
    Q_PROPERTY(QStringList paths MEMBER paths)

public:
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
    Q_GADGET
    Q_PROPERTY(QString path READ path)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(qint64 totalSize MEMBER totalSize)
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 depth MEMBER depth)
    Q_PROPERTY(tessarine::FolderColor color MEMBER color)

public:
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
    // The files lying directly in this folder: those its sub-folders do not count, never fewer
    // than none.
    qint64 directFileCount() const;

    bool operator==(const FolderInfo&) const = default;
};

// An optional folder tree that copies share instead of duplicating: a result is copied whenever a
// view reads it, and a large tree holds tens of thousands of folders. The tree never changes once
// made; equality compares contents. QML hands it from the view that builds it to those that draw
// it.
class SharedFolderTree {
    Q_GADGET
    Q_PROPERTY(bool hasValue READ has_value)

public:
    SharedFolderTree() = default;
    SharedFolderTree(FolderInfo tree)
        : m_tree(std::make_shared<const FolderInfo>(std::move(tree))) {}
    SharedFolderTree(std::shared_ptr<const FolderInfo> tree)
        : m_tree(std::move(tree)) {}

    bool has_value() const { return m_tree != nullptr; }
    explicit operator bool() const { return has_value(); }
    const FolderInfo& operator*() const { return *m_tree; }
    const FolderInfo* operator->() const { return m_tree.get(); }
    const std::shared_ptr<const FolderInfo>& shared() const { return m_tree; }

    friend bool operator==(const SharedFolderTree& a, const SharedFolderTree& b) {
        return a.m_tree == b.m_tree || (a.m_tree && b.m_tree && *a.m_tree == *b.m_tree);
    }

private:
    std::shared_ptr<const FolderInfo> m_tree;
};

// Where a result that was not scanned here came from: the program that wrote the imported file,
// the file's name, when it was imported, and which of the result's fields that file could not
// give (they hold what a scan holds for "unknown": the distant past for a date, 0 for a duration).
struct ImportSource {
    Q_GADGET
    Q_PROPERTY(QString program MEMBER program)
    Q_PROPERTY(QString fileName MEMBER fileName)
    Q_PROPERTY(QDateTime importDate MEMBER importDate)
    Q_PROPERTY(QStringList unknownFields MEMBER unknownFields)
    Q_PROPERTY(QString label READ label)

public:
    QString program;  // "ncdu 1.18", "tessarine-cli 0.1.0"
    QString fileName; // without its folder; "standard input" for a pipe
    QDateTime importDate;
    // Field names: "scanDate", "modificationDate", "scanDuration"; "folderTree" when the tree
    // stops short of the deepest folders (a stored result is read by JSON readers with a depth
    // limit), keeping their totals in the folders above.
    QStringList unknownFields;

    // "Imported from ncdu 1.18 (srv.json), Nov 25, 2026 at 9:41 AM": where from and when, as the
    // dashboard and the history mark an imported scan.
    QString label() const;
    // The scan date to show of a result or summary: none where the file it was imported from
    // gave none (scanDate then holds the import date, which orders it in the history).
    static QDateTime knownScanDate(const QDateTime& scanDate,
                                   const std::optional<ImportSource>& source);

    bool operator==(const ImportSource&) const = default;
};

// One finished scan. Copies are cheap: every list is shared until written, so views take results
// by value.
struct AnalysisResult {
    Q_GADGET
    Q_PROPERTY(QDateTime scanDate MEMBER scanDate)
    Q_PROPERTY(QDateTime knownScanDate READ knownScanDate)
    Q_PROPERTY(QString rootPath MEMBER rootPath)
    Q_PROPERTY(QString rootName MEMBER rootName)
    Q_PROPERTY(qint64 totalSize MEMBER totalSize)
    Q_PROPERTY(qint64 fileCount MEMBER fileCount)
    Q_PROPERTY(qint64 folderCount MEMBER folderCount)
    Q_PROPERTY(qint64 maxDepth MEMBER maxDepth)
    Q_PROPERTY(double scanDuration MEMBER scanDuration)
    Q_PROPERTY(QString formattedDuration READ formattedDuration)
    Q_PROPERTY(QString folderName READ folderName)
    Q_PROPERTY(tessarine::SharedFolderTree folderTree MEMBER folderTree)
    Q_PROPERTY(tessarine::ScanOptions scanOptions MEMBER scanOptions)
    Q_PROPERTY(bool isImported READ isImported)
    Q_PROPERTY(tessarine::ImportSource importSource READ importSourceOrNone)

public:
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
    SharedFolderTree folderTree;
    ScanOptions scanOptions;                  // what the scan was made with
    std::optional<ImportSource> importSource; // only in results read from another program's file

    // The extension entries, largest totalSize first.
    QList<ExtensionStats> sortedExtensions() const;
    // The depth entries, smallest depth first.
    std::vector<std::pair<qint64, DepthStats>> sortedDepths() const;
    // scanDuration as "250 ms", "12.3 seconds" or "2m 5s"; "—" where an imported file gave none.
    QString formattedDuration() const;
    QDateTime knownScanDate() const { return ImportSource::knownScanDate(scanDate, importSource); }
    // The last component of rootPath as the sidebar and the history show it: empty for the root
    // folder, which names itself elsewhere, and "Unknown" without a path.
    QString folderName() const;
    bool isImported() const { return importSource.has_value(); }
    ImportSource importSourceOrNone() const { return importSource.value_or(ImportSource()); }

    bool operator==(const AnalysisResult&) const = default;
};

} // namespace tessarine
