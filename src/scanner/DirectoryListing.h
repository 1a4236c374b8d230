#pragma once

#include "scanner/ListedDirectory.h"
#include "scanner/ListingArena.h"

#include <QByteArray>

#include <vector>

namespace tessarine {

// What a walk records beyond, or leaves out of, what a scan needs.
struct ListingDetail {
    // Symbolic links and packages keep their own size (ListedEntry::ownSize), at the cost of one
    // fstatat each that the entry type alone would otherwise spare; a scan counts neither's own.
    bool ownSizes = false;
    // Files, special files and sized links are not kept one by one but summed into their folder
    // (ListedDirectory::summedSize). A folder tree needs only each folder's totals, and those
    // entries, with their names, are most of a listing's memory.
    bool summedFiles = false;
};

// Everything one walk discovered below a root folder, held compactly in arenas. The root is
// absent when the root folder could not be opened. Move-only: the entries point into the arenas.
class DirectoryListing {
public:
    DirectoryListing() = default;
    DirectoryListing(DirectoryListing&&) noexcept = default;
    DirectoryListing& operator=(DirectoryListing&&) noexcept = default;
    DirectoryListing(const DirectoryListing&) = delete;
    DirectoryListing& operator=(const DirectoryListing&) = delete;

    // The root folder's path as given to the walker (absolute and clean), in file-system bytes.
    const QByteArray& rootPath() const { return m_rootPath; }
    const ListedDirectory* root() const { return m_root; }
    // Every item discovered below the root, of any kind; folders counts directories and packages.
    qint64 itemCount() const { return m_itemCount; }
    qint64 folderCount() const { return m_folderCount; }
    bool isEmpty() const { return m_itemCount == 0; }
    // Whether the walk stopped early on request, leaving some folders pending.
    bool wasCancelled() const { return m_cancelled; }

private:
    friend class DirectoryWalker;
    friend class NcduListingReader;

    QByteArray m_rootPath;
    std::vector<ListingArena> m_arenas;
    const ListedDirectory* m_root = nullptr;
    qint64 m_itemCount = 0;
    qint64 m_folderCount = 0;
    bool m_cancelled = false;
};

} // namespace tessarine
