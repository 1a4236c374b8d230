#pragma once

#include <QByteArrayView>
#include <QtGlobal>

#include <limits>
#include <optional>

namespace tessarine {

class ListedDirectory;

// What discovery learned about one directory entry. A scan keeps one of these per item until the
// analysis has folded them, so the layout is kept to 32 bytes plus the name bytes in an arena.
enum class EntryKind : quint8 {
    file,       // regular file: size and modification time known
    special,    // fifo, socket or device: counted like a file of its st_size, never opened
    directory,  // a folder whose contents are listed below it
    package,    // a bundle folder: one folder, its contents deliberately left out
    symlink,    // never followed, so it has no contents; its own size only when asked for
    unreadable, // its metadata could not be read (it vanished, or the stat failed)
};

class ListedEntry {
public:
    static constexpr qint64 unknownModificationTime = std::numeric_limits<qint64>::min();

    static ListedEntry sized(QByteArrayView name, EntryKind kind, qint64 size,
                             qint64 modifiedMsecs);
    static ListedEntry folder(QByteArrayView name, ListedDirectory* contents);
    // A symbolic link with the st_size of the link itself (the length of its target).
    static ListedEntry link(QByteArrayView name, qint64 ownSize);
    // Packages, symbolic links and unreadable entries: a name and a kind, and the entry's own size
    // where it came with the name (an imported export gives it), else none.
    static ListedEntry unsized(QByteArrayView name, EntryKind kind, qint64 ownSize = -1);

    // The raw bytes of the name, exactly as the file system returned them (not decoded).
    QByteArrayView name() const { return {m_name, qsizetype(m_nameLength)}; }
    EntryKind kind() const { return m_kind; }
    bool isFolder() const { return m_kind == EntryKind::directory || m_kind == EntryKind::package; }
    bool isSized() const { return m_kind == EntryKind::file || m_kind == EntryKind::special; }
    // Counted size of a file or special file (st_size, or its blocks when the scan counts disk
    // usage); 0 for everything else.
    qint64 size() const { return isSized() ? m_payload.sized.size : 0; }
    // What the file system gives as the size of the entry itself, not followed: size() for a
    // file or special file, the own size given to link() or unsized(); none for a folder and
    // where none was given. The scan counts no links, so only the folder tree asks for this.
    std::optional<qint64> ownSize() const {
        if (m_kind != EntryKind::directory && m_payload.sized.size >= 0)
            return m_payload.sized.size;
        return std::nullopt;
    }
    // Milliseconds since the epoch, or unknownModificationTime.
    qint64 modifiedMsecs() const {
        return isSized() ? m_payload.sized.modifiedMsecs : unknownModificationTime;
    }
    // Whether the file has other names (st_nlink > 1), here or elsewhere. Its size counts once per
    // listing, at its first name in listing order: see HardLinkClaims.
    bool isHardLinked() const { return m_hardLinked; }
    void markHardLinked() { m_hardLinked = true; }
    // A later name of a file already counted: it stays listed, with no size of its own.
    void dropRepeatedLinkSize() { m_payload.sized.size = 0; }
    // The listing of a directory entry; null for every other kind (packages included).
    const ListedDirectory* contents() const {
        return m_kind == EntryKind::directory ? m_payload.contents : nullptr;
    }

private:
    ListedEntry(QByteArrayView name, EntryKind kind);

    const char* m_name;
    // Folders never carry a size or a date and files never carry contents, so they share space.
    // A symbolic link may keep its own size here; -1 when it has none.
    union Payload {
        struct Sized {
            qint64 size;
            qint64 modifiedMsecs;
        } sized;
        ListedDirectory* contents;
    } m_payload;
    quint32 m_nameLength;
    EntryKind m_kind;
    bool m_hardLinked = false;
};

static_assert(sizeof(ListedEntry) == 32, "one listed item must stay compact");

} // namespace tessarine
