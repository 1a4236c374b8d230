#include "scanner/ListingCursor.h"

namespace tessarine {

ListingCursor::ListingCursor(const DirectoryListing& listing)
    : m_folderPath(listing.rootPath()) {
    if (listing.root())
        enter(*listing.root(), m_folderPath.size());
}

bool ListingCursor::next() {
    if (m_entry) {
        if (const ListedDirectory* contents = m_entry->contents(); contents) {
            const qsizetype pathLength = m_folderPath.size();
            appendPathComponent(m_folderPath, m_entry->name());
            enter(*contents, pathLength);
        }
    }
    while (!m_stack.empty()) {
        Frame& top = m_stack.back();
        if (top.next != top.end) {
            m_entry = top.next++;
            return true;
        }
        m_folderPath.truncate(top.pathLength);
        m_stack.pop_back();
    }
    m_entry = nullptr;
    return false;
}

QByteArray ListingCursor::entryPath() const {
    QByteArray path = m_folderPath;
    appendPathComponent(path, m_entry->name());
    return path;
}

void ListingCursor::enter(const ListedDirectory& folder, qsizetype pathLength) {
    const auto entries = folder.entries();
    m_stack.push_back({entries.data(), entries.data() + entries.size(), pathLength});
}

} // namespace tessarine
