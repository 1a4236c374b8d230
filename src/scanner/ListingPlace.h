#pragma once

#include "scanner/ListedDirectory.h"

namespace tessarine {

// Where an entry stands in a listing: its folder, and how many visible entries that folder's
// listing gave before it (summed ones included, as in ListedDirectory::position).
struct ListingPlace {
    ListedDirectory* folder;
    quint32 position;
};

// Whether `a` comes before `b` in listing order: pre-order, each folder followed at once by its
// contents, entries in the order the file system listed them. Both must belong to one listing and
// be distinct; costs one step per level between them and the folder they share.
bool comesBefore(const ListingPlace& a, const ListingPlace& b);

} // namespace tessarine
