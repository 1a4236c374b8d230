#pragma once

#include "scanner/ListingPlace.h"

#include <QtGlobal>

#include <cstddef>
#include <memory>
#include <span>
#include <sys/types.h>

namespace tessarine {

// A file as the file system knows it, whatever its names.
struct FileIdentity {
    dev_t device;
    ino_t inode;

    bool operator==(const FileIdentity&) const = default;
    // For a set of files: the hash the claims below spread their table by.
    struct Hash {
        std::size_t operator()(const FileIdentity& file) const noexcept;
    };
};

// A name of a file with several names (st_nlink > 1) in one folder's listing.
struct LinkedName {
    FileIdentity file;
    quint32 position; // among the folder's visible entries, as in ListingPlace
    qint64 size;
};

// A file with several names inside one listing takes its space once, as du, ncdu and gdu count
// it: its first name in listing order (pre-order, each folder's entries in the order the file
// system listed them) keeps the size, every later name keeps its place with no size. Deciding by
// listing order rather than by the order threads happened to meet the names keeps the result
// independent of the walk's scheduling.
//
// The walker's threads settle it as they go: one record per file (not per name) in a table cut
// into shards, each behind its own lock, so threads seldom wait on each other and a backup of
// several hard-linked copies costs a few dozen bytes per file, once.
class HardLinkClaims {
public:
    // `summed`: the listing sums its files into their folders (ListingDetail::summedFiles).
    explicit HardLinkClaims(bool summed);
    ~HardLinkClaims();
    HardLinkClaims(const HardLinkClaims&) = delete;
    HardLinkClaims& operator=(const HardLinkClaims&) = delete;

    // The names of files with several names in `folder`: called from any walker thread once the
    // folder holds its entries. In a listing that keeps its files, the entry of whichever name
    // turns out later loses its size here and now; in a summed one, each name was counted without
    // its size, which settle() hands to the first.
    void claim(ListedDirectory& folder, std::span<const LinkedName> names);

    // Once every name has been claimed: in a summed listing, adds each file's size to the folder
    // of its first name.
    void settle();

private:
    struct Shard;

    Shard& shardOf(quint64 hash) const;
    void claim(const LinkedName& name, const ListingPlace& place);

    const bool m_summed;
    std::unique_ptr<Shard[]> m_shards;
};

} // namespace tessarine
