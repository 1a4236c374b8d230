#include "scanner/ListedEntry.h"

namespace tessarine {

ListedEntry::ListedEntry(QByteArrayView name, EntryKind kind)
    : m_name(name.data())
    , m_payload{.sized = {-1, unknownModificationTime}}
    , m_nameLength(quint32(name.size()))
    , m_kind(kind) {}

ListedEntry ListedEntry::sized(QByteArrayView name, EntryKind kind, qint64 size,
                               qint64 modifiedMsecs) {
    ListedEntry entry(name, kind);
    entry.m_payload.sized = {size, modifiedMsecs};
    return entry;
}

ListedEntry ListedEntry::folder(QByteArrayView name, ListedDirectory* contents) {
    ListedEntry entry(name, EntryKind::directory);
    entry.m_payload.contents = contents;
    return entry;
}

ListedEntry ListedEntry::link(QByteArrayView name, qint64 ownSize) {
    ListedEntry entry(name, EntryKind::symlink);
    entry.m_payload.sized.size = ownSize;
    return entry;
}

ListedEntry ListedEntry::unsized(QByteArrayView name, EntryKind kind, qint64 ownSize) {
    ListedEntry entry(name, kind);
    entry.m_payload.sized.size = ownSize;
    return entry;
}

} // namespace tessarine
