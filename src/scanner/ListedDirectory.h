#pragma once

#include "scanner/ListedEntry.h"

#include <QByteArray>
#include <QByteArrayView>

#include <span>

namespace tessarine {

// One folder of a listing: its entries in the order the file system returned them.
// The parent link and the name are fixed when the folder is discovered; the entries are filled
// in once, by whichever walker thread lists the folder.
class ListedDirectory {
public:
    enum class State : quint8 {
        pending,         // not listed (yet): the walk was cancelled before reaching it
        listed,          // entries hold its visible contents
        unreadable,      // it could not be opened; it has no entries
        otherFileSystem, // a mount point on a walk kept to the root's file system: not entered
    };

    // `position`: where the parent's listing has it among its visible entries (see position()).
    ListedDirectory(const ListedDirectory* parent, QByteArrayView name, quint32 position = 0)
        : m_parent(parent)
        , m_name(name.data())
        , m_nameLength(quint32(name.size()))
        , m_position(position) {}

    const ListedDirectory* parent() const { return m_parent; }
    // Raw name bytes; empty for the root of a listing.
    QByteArrayView name() const { return {m_name, qsizetype(m_nameLength)}; }
    // How many visible entries the parent's listing gave before this folder, summed ones included:
    // with the parent links it places any two entries of a listing in order (ListingPlace).
    quint32 position() const { return m_position; }
    State state() const { return m_state; }
    std::span<const ListedEntry> entries() const { return {m_entries, m_entryCount}; }
    // The entries left out of entries() by a walk that sums files (ListingDetail::summedFiles):
    // how many, and the sum of their own sizes. Zero otherwise.
    qint64 summedCount() const { return m_summedCount; }
    qint64 summedSize() const { return m_summedSize; }

    // The path of this folder below rootPath, built by following the parent links.
    QByteArray pathBelow(QByteArrayView rootPath) const;

    void setEntries(std::span<ListedEntry> entries, qint64 summedCount = 0, qint64 summedSize = 0);
    void markUnreadable() { m_state = State::unreadable; }
    // For the walk, which settles the sizes of files with several names once it has met them all.
    ListedEntry& entryAt(quint32 index) { return m_entries[index]; }
    void addSummedSize(qint64 size);
    void markOnOtherFileSystem() { m_state = State::otherFileSystem; }

private:
    const ListedDirectory* m_parent;
    const char* m_name;
    ListedEntry* m_entries = nullptr;
    qint64 m_summedCount = 0;
    qint64 m_summedSize = 0;
    quint32 m_nameLength;
    quint32 m_entryCount = 0;
    quint32 m_position;
    State m_state = State::pending;
};

static_assert(sizeof(ListedDirectory) == 56, "one listed folder must stay compact");

// Appends a path component, adding a separator unless the path already ends with one ("/").
void appendPathComponent(QByteArray& path, QByteArrayView component);

} // namespace tessarine
