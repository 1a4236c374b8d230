#include "scanner/HardLinks.h"

#include <QHashFunctions>

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tessarine {

namespace {

struct IdentityHash {
    std::size_t operator()(const FileIdentity& identity) const {
        return qHashMulti(0, quint64(identity.device), quint64(identity.inode));
    }
};

// Calls visit(entry) for every entry of the listing in pre-order.
template <typename Visit> void visitInListingOrder(const ListedDirectory& root, Visit&& visit) {
    struct Frame {
        const ListedEntry* next;
        const ListedEntry* end;
    };
    std::vector<Frame> stack{
        {root.entries().data(), root.entries().data() + root.entries().size()}};
    while (!stack.empty()) {
        Frame& top = stack.back();
        if (top.next == top.end) {
            stack.pop_back();
            continue;
        }
        const ListedEntry& entry = *top.next++;
        visit(entry);
        if (const ListedDirectory* contents = entry.contents())
            stack.push_back({contents->entries().data(),
                             contents->entries().data() + contents->entries().size()});
    }
}

} // namespace

void countHardLinkedFilesOnce(const DirectoryListing& listing,
                              std::span<const HardLinkedEntry> links) {
    // Most files with several names have their other names outside the walked folder: only
    // identities met twice need the listing order.
    std::unordered_map<FileIdentity, int, IdentityHash> names;
    for (const HardLinkedEntry& link : links)
        ++names[link.identity];
    std::unordered_map<const ListedEntry*, const HardLinkedEntry*> repeated;
    for (const HardLinkedEntry& link : links) {
        if (names[link.identity] > 1)
            repeated.emplace(link.entry, &link);
    }
    if (repeated.empty() || !listing.root())
        return;
    std::unordered_set<FileIdentity, IdentityHash> counted;
    visitInListingOrder(*listing.root(), [&](const ListedEntry& entry) {
        if (!entry.isHardLinked())
            return;
        const auto found = repeated.find(&entry);
        if (found != repeated.end() && !counted.insert(found->second->identity).second)
            found->second->entry->dropRepeatedLinkSize();
    });
}

} // namespace tessarine
