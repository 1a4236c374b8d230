#include "scanner/ListingPlace.h"

namespace tessarine {

namespace {

// A place inside a folder, as seen from that folder's parent: it lies within the folder's entry.
struct Lifted {
    const ListedDirectory* folder;
    quint32 position;

    void up() {
        position = folder->position();
        folder = folder->parent();
    }
};

int depthOf(const ListedDirectory* folder) {
    int depth = 0;
    for (; folder->parent(); folder = folder->parent())
        ++depth;
    return depth;
}

} // namespace

bool comesBefore(const ListingPlace& a, const ListingPlace& b) {
    Lifted first{a.folder, a.position};
    Lifted second{b.folder, b.position};
    if (first.folder != second.folder) {
        int firstDepth = depthOf(first.folder);
        int secondDepth = depthOf(second.folder);
        for (; firstDepth > secondDepth; --firstDepth)
            first.up();
        for (; secondDepth > firstDepth; --secondDepth)
            second.up();
        while (first.folder != second.folder) {
            first.up();
            second.up();
        }
    }
    // In the folder both lie in, a folder's contents come right after its own entry, so whichever
    // entry (or sub-folder holding it) the listing gave first comes first.
    return first.position < second.position;
}

} // namespace tessarine
