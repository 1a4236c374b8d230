#include "tree/FolderTreeAssembly.h"

#include <QFile>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

namespace tessarine {

namespace {

QString decodedName(QByteArrayView bytes) {
    return QFile::decodeName(QByteArray::fromRawData(bytes.data(), bytes.size()));
}

// The last component of a cleaned absolute path; "/" names itself.
QString lastPathComponent(const QString& path) {
    return path == QLatin1String("/") ? path : path.sliced(path.lastIndexOf(u'/') + 1);
}

bool isListed(const ListedDirectory* folder) {
    return folder && folder->state() == ListedDirectory::State::listed;
}

} // namespace

// One folder whose entries are being summed.
struct FolderTreeAssembly::Frame {
    const ListedEntry* next;
    const ListedEntry* end;
    QByteArrayView name; // empty for the root
    qsizetype parentPathLength;
    qint64 depth;
    FolderColor color;
    qint64 totalSize = 0;
    qint64 fileCount = 0;
    qint64 subfolderCount = 0; // sub-folders met so far, dropped ones included: the colour index
    std::vector<FolderInfo> children;
};

qint64 treeFolderCount(const DirectoryListing& listing) {
    qint64 count = 0;
    std::vector<const ListedDirectory*> pending;
    if (listing.root())
        pending.push_back(listing.root());
    while (!pending.empty()) {
        const ListedDirectory* folder = pending.back();
        pending.pop_back();
        for (const ListedEntry& entry : folder->entries()) {
            if (entry.kind() != EntryKind::directory)
                continue;
            ++count;
            if (isListed(entry.contents()))
                pending.push_back(entry.contents());
        }
    }
    return count;
}

qint64 FolderTreeAssembly::updateInterval(qint64 folderCount) {
    return std::max<qint64>(folderCount / 200, 1);
}

FolderTreeAssembly::FolderTreeAssembly(const std::atomic<bool>& cancelled, qint64 folderCount,
                                       FolderCallback onInterval)
    : m_cancelled(cancelled)
    , m_folderCount(folderCount)
    , m_interval(updateInterval(folderCount))
    , m_onInterval(std::move(onInterval)) {}

FolderTreeAssembly::~FolderTreeAssembly() = default;

std::optional<FolderInfo> FolderTreeAssembly::assemble(const DirectoryListing& listing,
                                                       const QString& rootPath) {
    m_rootPath = rootPath;
    m_rootName = lastPathComponent(rootPath);
    if (!isListed(listing.root())) {
        // A root the walker could not open cannot be listed directly either: like any folder that
        // cannot be listed it is an empty leaf, counted but without a progress record.
        ++m_processed;
        FolderInfo leaf;
        leaf.path = m_rootPath;
        leaf.name = m_rootName;
        return leaf;
    }
    m_path = listing.rootPath();
    m_stack.clear();
    enter(*listing.root(), {}, 0, folderColorAt(0));
    while (!m_cancelled.load(std::memory_order_relaxed)) {
        Frame& top = m_stack.back();
        if (top.next != top.end) {
            visit(top, *top.next++);
            continue;
        }
        std::optional<FolderInfo> node = finish(top);
        m_path.truncate(top.parentPathLength);
        m_stack.pop_back();
        if (m_stack.empty())
            return node;
        if (node) {
            Frame& parent = m_stack.back();
            parent.totalSize += node->totalSize;
            parent.fileCount += node->fileCount;
            parent.children.push_back(std::move(*node));
        }
    }
    return std::nullopt;
}

void FolderTreeAssembly::enter(const ListedDirectory& folder, QByteArrayView name, qint64 depth,
                               FolderColor color) {
    const qsizetype parentPathLength = m_path.size();
    if (!name.isEmpty())
        appendPathComponent(m_path, name);
    const auto entries = folder.entries();
    std::vector<FolderInfo> children;
    // With the files summed away the entries are nearly all sub-folders: one allocation each.
    if (folder.summedCount() > 0 || entries.size() > 1)
        children.reserve(entries.size());
    m_stack.push_back(Frame{entries.data(), entries.data() + entries.size(), name, parentPathLength,
                            depth, color, folder.summedSize(), folder.summedCount(), 0,
                            std::move(children)});
}

void FolderTreeAssembly::visit(Frame& frame, const ListedEntry& entry) {
    if (entry.kind() != EntryKind::directory) {
        const std::optional<qint64> size = entry.ownSize();
        frame.totalSize += size ? *size : unlistedEntrySize(entry.name());
        frame.fileCount += 1;
        return;
    }
    const FolderColor color = folderColorAt(frame.subfolderCount++);
    if (!isListed(entry.contents())) {
        // An empty leaf, which its parent drops at once; it still counts as processed.
        ++m_processed;
        return;
    }
    enter(*entry.contents(), entry.name(), frame.depth + 1, color); // invalidates `frame`
}

std::optional<FolderInfo> FolderTreeAssembly::finish(Frame& frame) {
    ++m_processed;
    if (m_processed % m_interval == 0 || m_processed == m_folderCount)
        m_onInterval(m_processed, folderName(frame));
    const bool isRoot = m_stack.size() == 1;
    if (!isRoot && frame.totalSize < 1 && frame.children.empty())
        return std::nullopt;
    // Stable, so that folders of equal size keep their listing order. The sort's scratch buffer is
    // not worth asking for without two children to order.
    if (frame.children.size() > 1)
        std::stable_sort(
            frame.children.begin(), frame.children.end(),
            [](const FolderInfo& a, const FolderInfo& b) { return a.totalSize > b.totalSize; });
    FolderInfo node;
    node.path = isRoot ? m_rootPath : QFile::decodeName(m_path);
    node.name = folderName(frame);
    node.totalSize = frame.totalSize;
    node.fileCount = frame.fileCount;
    node.childFolders = std::move(frame.children);
    node.depth = frame.depth;
    node.color = frame.color;
    return node;
}

// Packages and entries whose metadata could not be read (and links, were the walk told not to
// size them) carry no size in the listing. They count as files of the size the file system gives
// their own entry (a link is not followed); one that cannot be read, or has vanished since, counts
// as zero bytes.
qint64 FolderTreeAssembly::unlistedEntrySize(QByteArrayView name) const {
    QByteArray path = m_path;
    appendPathComponent(path, name);
    struct stat status;
    if (fstatat(AT_FDCWD, path.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return 0;
    return qint64(status.st_size);
}

QString FolderTreeAssembly::folderName(const Frame& frame) const {
    return frame.name.isEmpty() ? m_rootName : decodedName(frame.name);
}

} // namespace tessarine
