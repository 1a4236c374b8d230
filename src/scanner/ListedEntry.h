#pragma once

#include <QByteArrayView>
#include <QtGlobal>

#include <limits>

namespace tessarine {

class ListedDirectory;

// What discovery learned about one directory entry. A scan keeps one of these per item until the
// analysis has folded them, so the layout is kept to 32 bytes plus the name bytes in an arena.
enum class EntryKind : quint8 {
    file,       // regular file: size and modification time known
    special,    // fifo, socket or device: counted like a file of its st_size, never opened
    directory,  // a folder whose contents are listed below it
    package,    // a bundle folder: one folder, its contents deliberately left out
    symlink,    // never followed, so it has neither size nor contents
    unreadable, // its metadata could not be read (it vanished, or the stat failed)
};

class ListedEntry {
public:
    static constexpr qint64 unknownModificationTime = std::numeric_limits<qint64>::min();

    static ListedEntry sized(QByteArrayView name, EntryKind kind, qint64 size,
                             qint64 modifiedMsecs);
    static ListedEntry folder(QByteArrayView name, ListedDirectory* contents);
    // Packages, symbolic links and unreadable entries: a name and a kind, nothing more.
    static ListedEntry unsized(QByteArrayView name, EntryKind kind);

    // The raw bytes of the name, exactly as the file system returned them (not decoded).
    QByteArrayView name() const { return {m_name, qsizetype(m_nameLength)}; }
    EntryKind kind() const { return m_kind; }
    bool isFolder() const { return m_kind == EntryKind::directory || m_kind == EntryKind::package; }
    bool isSized() const { return m_kind == EntryKind::file || m_kind == EntryKind::special; }
    // Logical size (st_size) of a file or special file; 0 for everything else.
    qint64 size() const { return isSized() ? m_payload.sized.size : 0; }
    // Milliseconds since the epoch, or unknownModificationTime.
    qint64 modifiedMsecs() const {
        return isSized() ? m_payload.sized.modifiedMsecs : unknownModificationTime;
    }
    // The listing of a directory entry; null for every other kind (packages included).
    const ListedDirectory* contents() const {
        return m_kind == EntryKind::directory ? m_payload.contents : nullptr;
    }

private:
    ListedEntry(QByteArrayView name, EntryKind kind);

    const char* m_name;
    // Folders never carry a size or a date and files never carry contents, so they share space.
    union Payload {
        struct Sized {
            qint64 size;
            qint64 modifiedMsecs;
        } sized;
        ListedDirectory* contents;
    } m_payload;
    quint32 m_nameLength;
    EntryKind m_kind;
};

static_assert(sizeof(ListedEntry) == 32, "one listed item must stay compact");

} // namespace tessarine
