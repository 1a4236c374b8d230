#pragma once

#include "scanner/DirectoryListing.h"

#include <QByteArray>

#include <vector>

namespace tessarine {

// Visits every entry of a listing in pre-order: a folder is followed at once by its own contents,
// entries in listing order, like a recursive directory enumerator. The walk uses an explicit
// stack, so any depth is fine, and keeps the path of the current folder in one growing buffer.
class ListingCursor {
public:
    explicit ListingCursor(const DirectoryListing& listing);

    // Moves to the next entry; false once every entry has been visited.
    bool next();

    const ListedEntry& entry() const { return *m_entry; }
    // 1 for an entry directly inside the root.
    qint64 depth() const { return qint64(m_stack.size()); }
    // The path of the folder that holds the current entry, in file-system bytes.
    const QByteArray& folderPath() const { return m_folderPath; }
    // The full path of the current entry (built on request: it allocates).
    QByteArray entryPath() const;

private:
    struct Frame {
        const ListedEntry* next;
        const ListedEntry* end;
        qsizetype pathLength; // length of m_folderPath before this folder's name was appended
    };

    void enter(const ListedDirectory& folder, qsizetype pathLength);

    std::vector<Frame> m_stack;
    QByteArray m_folderPath;
    const ListedEntry* m_entry = nullptr;
};

} // namespace tessarine
