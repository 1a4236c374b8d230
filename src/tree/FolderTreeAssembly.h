#pragma once

#include "model/Records.h"
#include "scanner/DirectoryListing.h"

#include <QByteArray>
#include <QString>

#include <atomic>
#include <functional>
#include <optional>
#include <vector>

namespace tessarine {

// The folders of a listing that get a node of their own: directories, not packages (a package is
// one item whose contents are deliberately left out, so it counts as a file).
qint64 treeFolderCount(const DirectoryListing& listing);

// The node pass of a folder tree build: turns a finished listing into the FolderInfo tree.
//
// It reads only what the enumeration stored, and does not list every folder a second time. The
// walker keeps each folder's sub-folders in listing order, with the totals of its files (or each
// file with its size), so a second listing would give the same tree at twice the cost; a folder the
// walker could not open (no permission, or removed before it got there) is marked unreadable in the
// listing and becomes an empty leaf here, exactly as a failed second listing would make it. Folders
// are finished in the same depth-first order as a recursive build, with an explicit stack so that
// depth is unlimited; no parallelism is needed, as the pass touches no disk but for the rare
// package or unreadable entry (the walk sizes the links).
class FolderTreeAssembly {
public:
    // Told (processed folders, name of the folder just finished) every updateInterval folders and
    // when the processed count reaches the folder count.
    using FolderCallback = std::function<void(qint64, const QString&)>;

    // max(folderCount / 200, 1): about two hundred progress records per build, however large.
    static qint64 updateInterval(qint64 folderCount);

    FolderTreeAssembly(const std::atomic<bool>& cancelled, qint64 folderCount,
                       FolderCallback onInterval);
    ~FolderTreeAssembly();
    FolderTreeAssembly(const FolderTreeAssembly&) = delete;
    FolderTreeAssembly& operator=(const FolderTreeAssembly&) = delete;

    // The tree below rootPath (the listing's root, cleaned); none when cancelled meanwhile.
    std::optional<FolderInfo> assemble(const DirectoryListing& listing, const QString& rootPath);

    // Folders finished so far, unreadable ones and the root included.
    qint64 processedCount() const { return m_processed; }

private:
    struct Frame;

    void enter(const ListedDirectory& folder, QByteArrayView name, qint64 depth, FolderColor color);
    void visit(Frame& frame, const ListedEntry& entry);
    // The finished node, or none when its parent drops it (nothing in it and no sub-folders).
    std::optional<FolderInfo> finish(Frame& frame);
    qint64 unlistedEntrySize(QByteArrayView name) const;
    QString folderName(const Frame& frame) const;

    const std::atomic<bool>& m_cancelled;
    const qint64 m_folderCount;
    const qint64 m_interval;
    FolderCallback m_onInterval;
    qint64 m_processed = 0;
    QString m_rootPath;
    QString m_rootName;
    QByteArray m_path; // the innermost open folder's path, in file-system bytes
    std::vector<Frame> m_stack;
};

} // namespace tessarine
