#include "scanner/DirectoryReader.h"

#include "model/SaturatingSum.h"
#include "scanner/ItemNameRules.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <optional>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tessarine {

namespace {

// Large enough that most folders are read in one or two system calls.
constexpr std::size_t bufferBytes = 128 * 1024;

// The kernel's linux_dirent64 record; glibc does not expose the raw layout under its own name.
struct KernelDirent {
    std::uint64_t inode;
    std::int64_t offset;
    unsigned short recordLength;
    unsigned char type;
    char name[1]; // NUL-terminated, running past the declared bound up to recordLength
};

// A file system may store any 64-bit second (tmpfs takes 2^62): past what milliseconds can hold,
// a date is held at the latest (or earliest) one instead of wrapping round to some other date.
qint64 modifiedMsecs(const struct stat& status) {
    constexpr qint64 latestSecond = std::numeric_limits<qint64>::max() / 1000 - 1;
    const qint64 seconds = std::clamp<qint64>(status.st_mtim.tv_sec, -latestSecond, latestSecond);
    return seconds * 1000 + status.st_mtim.tv_nsec / 1'000'000;
}

} // namespace

DirectoryReader::DirectoryReader(ListingArena& arena, HardLinkClaims& claims, ListingDetail detail,
                                 ScanOptions options, dev_t rootDevice)
    : m_arena(arena)
    , m_claims(claims)
    , m_detail(detail)
    , m_options(options)
    , m_rootDevice(rootDevice)
    , m_buffer(
          std::make_unique_for_overwrite<std::uint64_t[]>(bufferBytes / sizeof(std::uint64_t))) {}

std::span<ListedDirectory* const> DirectoryReader::read(int fd, ListedDirectory& folder,
                                                        const std::atomic<bool>& cancelled) {
    m_entries.clear();
    m_subfolders.clear();
    m_linkedNames.clear();
    m_position = 0;
    m_folderCount = 0;
    qint64 summedCount = 0;
    qint64 summedSize = 0;
    auto* bytes = reinterpret_cast<char*>(m_buffer.get());
    while (!cancelled.load(std::memory_order_relaxed)) {
        const long filled = syscall(SYS_getdents64, fd, bytes, bufferBytes);
        if (filled <= 0)
            break; // end of the folder, or it became unreadable: keep what was read
        for (long at = 0; at < filled;) {
            const auto* record = reinterpret_cast<const KernelDirent*>(bytes + at);
            const char* name = bytes + at + offsetof(KernelDirent, name);
            at += record->recordLength;
            const QByteArrayView nameView(name, qsizetype(std::strlen(name)));
            if (isLeftOut(nameView))
                continue;
            const ListedEntry entry = describe(fd, folder, nameView, record->type);
            ++m_position;
            const std::optional<qint64> size = entry.ownSize();
            m_folderCount += entry.isFolder();
            if (m_detail.summedFiles && size) {
                ++summedCount;
                // A name of a file with several names gets its size only if it is the first.
                if (!entry.isHardLinked())
                    addSaturating(summedSize, *size);
                continue;
            }
            m_entries.push_back(entry);
        }
    }
    folder.setEntries(m_arena.copyArray(std::span<const ListedEntry>(m_entries)), summedCount,
                      summedSize);
    m_claims.claim(folder, m_linkedNames);
    return m_subfolders;
}

// `name` lies in the getdents buffer, NUL-terminated, so it can be looked up before deciding
// whether the listing keeps a copy.
ListedEntry DirectoryReader::describe(int fd, ListedDirectory& folder, QByteArrayView name,
                                      unsigned char type) {
    // The entry type from the listing settles folders, and links whose size is not wanted, without
    // a stat; everything else, and file systems that report no type, need one for size, date and
    // kind. A walk that stays on one file system needs each folder's device too: one stat per
    // folder, none more per file.
    // Only a folder, or an entry of no known type, can be a package: a file's name is not looked
    // at.
    const bool sizedPackage =
        m_detail.ownSizes && (type == DT_DIR || type == DT_UNKNOWN) && isPackageName(name);
    if (type == DT_DIR && !m_options.oneFileSystem && !sizedPackage)
        return describeFolder(folder, m_arena.copyName(name));
    if (type == DT_LNK && !m_detail.ownSizes)
        return ListedEntry::unsized(m_arena.copyName(name), EntryKind::symlink);
    struct stat status;
    if (fstatat(fd, name.data(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return ListedEntry::unsized(m_arena.copyName(name), EntryKind::unreadable);
    if (S_ISDIR(status.st_mode) && sizedPackage)
        return ListedEntry::unsized(m_arena.copyName(name), EntryKind::package,
                                    countedSize(status));
    if (S_ISDIR(status.st_mode))
        return describeFolder(folder, m_arena.copyName(name),
                              !m_options.oneFileSystem || status.st_dev == m_rootDevice);
    // A summed entry is dropped right after: its name would only take space.
    const QByteArrayView storedName =
        m_detail.summedFiles ? QByteArrayView() : m_arena.copyName(name);
    ListedEntry entry =
        S_ISLNK(status.st_mode) // the stat is made anyway, so its size is kept
            ? ListedEntry::link(storedName, countedSize(status))
            : ListedEntry::sized(storedName,
                                 S_ISREG(status.st_mode) ? EntryKind::file : EntryKind::special,
                                 countedSize(status), modifiedMsecs(status));
    if (status.st_nlink > 1) {
        entry.markHardLinked();
        m_linkedNames.push_back({{status.st_dev, status.st_ino}, m_position, *entry.ownSize()});
    }
    return entry;
}

// "." and ".." are never entries of their own; other hidden names only unless asked for.
bool DirectoryReader::isLeftOut(QByteArrayView name) const {
    return m_options.includeHidden ? isSelfOrParentName(name) : isHiddenName(name);
}

// As du counts without --apparent-size when asked: a sparse file takes only what it occupies.
qint64 DirectoryReader::countedSize(const struct stat& status) const {
    if (!m_options.diskUsage)
        return qint64(status.st_size);
    constexpr qint64 blockBytes = 512; // st_blocks is in these units, whatever the file system
    constexpr qint64 mostBlocks = std::numeric_limits<qint64>::max() / blockBytes;
    return std::min<qint64>(status.st_blocks, mostBlocks) * blockBytes;
}

ListedEntry DirectoryReader::describeFolder(ListedDirectory& folder, QByteArrayView name,
                                            bool enter) {
    if (isPackageName(name))
        return ListedEntry::unsized(name, EntryKind::package);
    auto* contents = m_arena.make<ListedDirectory>(&folder, name, m_position);
    // Not entered, a mount point still counts as a folder in the scan, as an empty one in the
    // tree: what du -x and find -xdev make of it.
    if (enter)
        m_subfolders.push_back(contents);
    else
        contents->markOnOtherFileSystem();
    return ListedEntry::folder(name, contents);
}

} // namespace tessarine
