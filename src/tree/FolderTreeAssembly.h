#pragma once

#include "model/Records.h"
#include "scanner/DirectoryListing.h"
#include "tree/AssemblyProgress.h"

#include <QString>

#include <atomic>
#include <optional>

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
// listing and becomes an empty leaf here, exactly as a failed second listing would make it.
//
// A large tree is built on every core: the pass touches no disk, but it writes some two hundred and
// fifty bytes of fresh memory per folder, and the first touch of a page costs more than the work
// done in it (over ten microseconds on a virtual machine), which threads pay side by side. The
// hierarchy is cut into subtrees of at most an eighth of one thread's share of its folders, built
// side by side, largest first, each by one thread as a whole; the few folders above them are then
// finished around the ready subtrees. The tree is the same as a single thread builds, node for
// node.
class FolderTreeAssembly {
public:
    using FolderCallback = AssemblyProgress::Callback;

    // max(folderCount / 200, 1): about two hundred progress records per build, however large.
    static qint64 updateInterval(qint64 folderCount);
    // Fewer folders than this are built on the calling thread alone: starting threads would cost
    // more than they save.
    static constexpr qint64 parallelFolderCount = 2000;

    // `onInterval` is told (processed folders, name of the folder just finished) every
    // updateInterval folders and when the processed count reaches the folder count, one record
    // at a time and in increasing order, from whichever thread finished that folder.
    // `threadCount` 0 means one per hardware thread.
    FolderTreeAssembly(const std::atomic<bool>& cancelled, qint64 folderCount,
                       FolderCallback onInterval, int threadCount = 0);

    // The tree below rootPath (the listing's root, cleaned); none when cancelled meanwhile.
    std::optional<FolderInfo> assemble(const DirectoryListing& listing, const QString& rootPath);

    // Folders finished so far, unreadable ones and the root included.
    qint64 processedCount() const { return m_progress.processed(); }

private:
    const std::atomic<bool>& m_cancelled;
    const qint64 m_folderCount;
    const int m_threadCount;
    AssemblyProgress m_progress;
};

} // namespace tessarine
