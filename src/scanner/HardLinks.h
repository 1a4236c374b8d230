#pragma once

#include "scanner/DirectoryListing.h"

#include <span>
#include <sys/types.h>

namespace tessarine {

// A file as the file system knows it, whatever its names.
struct FileIdentity {
    dev_t device;
    ino_t inode;

    bool operator==(const FileIdentity&) const = default;
};

// An entry of a listing whose file has more than one name (ListedEntry::isHardLinked).
struct HardLinkedEntry {
    ListedEntry* entry;
    FileIdentity identity;
};

// A file with several names inside one listing takes its space once, as du, ncdu and gdu count
// it: its first name in listing order (pre-order, each folder's entries in the order the file
// system listed them) keeps the size, every later name keeps its place with no size. Folding in
// listing order rather than in the order threads happened to meet the names keeps the result
// independent of the walk's scheduling. Costs nothing unless two of `links` name the same file.
void countHardLinkedFilesOnce(const DirectoryListing& listing,
                              std::span<const HardLinkedEntry> links);

} // namespace tessarine
