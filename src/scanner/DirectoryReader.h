#pragma once

#include "model/ScanOptions.h"
#include "scanner/DirectoryListing.h"
#include "scanner/HardLinks.h"
#include "scanner/ListedDirectory.h"
#include "scanner/ListingArena.h"

#include <atomic>
#include <memory>
#include <span>
#include <sys/stat.h>
#include <vector>

namespace tessarine {

// Lists one open folder with getdents64 and reads each entry's metadata relative to the folder's
// descriptor (fstatat, no path building, so any depth works). One reader per walker thread: it
// owns a large getdents buffer and scratch space reused for every folder.
class DirectoryReader {
public:
    // Hands every name of a file with several names to `claims`, which settles its size.
    // `rootDevice` is the scanned folder's, which folders must share when the options keep the
    // walk on one file system.
    DirectoryReader(ListingArena& arena, HardLinkClaims& claims, ListingDetail detail = {},
                    ScanOptions options = {}, dev_t rootDevice = 0);

    // Fills `folder` with the visible entries of the folder open as `fd` (the descriptor stays
    // open). Returns the new sub-folders to descend into, in listing order; packages are not
    // among them. Stops early, keeping what it read, when `cancelled` becomes true.
    std::span<ListedDirectory* const> read(int fd, ListedDirectory& folder,
                                           const std::atomic<bool>& cancelled);

    // Of the entries of the last folder read: folders (directories and packages).
    qint64 lastFolderCount() const { return m_folderCount; }

private:
    ListedEntry describe(int fd, ListedDirectory& folder, QByteArrayView name, unsigned char type);
    // `enter` false: the folder is on another file system and the walk stays on the root's.
    ListedEntry describeFolder(ListedDirectory& folder, QByteArrayView name, bool enter = true);
    bool isLeftOut(QByteArrayView name) const;
    qint64 countedSize(const struct stat& status) const;

    ListingArena& m_arena;
    HardLinkClaims& m_claims;
    const ListingDetail m_detail;
    const ScanOptions m_options;
    const dev_t m_rootDevice;
    std::unique_ptr<std::uint64_t[]> m_buffer;
    std::vector<ListedEntry> m_entries;
    std::vector<ListedDirectory*> m_subfolders;
    std::vector<LinkedName> m_linkedNames; // of the folder being read, claimed once it is listed
    quint32 m_position = 0; // of the entry being described, among the folder's visible ones
    qint64 m_folderCount = 0;
};

} // namespace tessarine
