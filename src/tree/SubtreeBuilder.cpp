#include "tree/SubtreeBuilder.h"

#include "model/PathBytes.h"
#include "model/PathNames.h"
#include "model/SaturatingSum.h"
#include "scanner/DirectoryWalker.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

namespace tessarine {

bool isListed(const ListedDirectory* folder) {
    return folder && folder->state() == ListedDirectory::State::listed;
}

// One folder whose entries are being summed.
struct SubtreeBuilder::Frame {
    const ListedEntry* next;
    const ListedEntry* end;
    bool isRoot;
    FolderPath location;
    qsizetype parentPathLength;
    qint64 depth;
    FolderColor color;
    qint64 totalSize = 0;
    qint64 fileCount = 0;
    qint64 subfolderCount = 0; // sub-folders met so far, dropped ones included: the colour index
    std::vector<FolderInfo> children;
};

SubtreeBuilder::SubtreeBuilder(const std::atomic<bool>& cancelled, AssemblyProgress& progress,
                               const QString& rootPath, const ReadyFolders* ready)
    : m_cancelled(cancelled)
    , m_progress(progress)
    , m_rootName(lastPathComponent(rootPath))
    , m_ready(ready) {}

SubtreeBuilder::~SubtreeBuilder() = default;

std::optional<FolderInfo> SubtreeBuilder::build(SubtreeStart start) {
    m_path = std::move(start.parentPath);
    m_stack.clear();
    enter(*start.folder, start.name, std::move(start.location), start.depth, start.color);
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
        if (node)
            adopt(m_stack.back(), std::move(*node));
    }
    return std::nullopt;
}

void SubtreeBuilder::enter(const ListedDirectory& folder, QByteArrayView name, FolderPath location,
                           qint64 depth, FolderColor color) {
    const qsizetype parentPathLength = m_path.size();
    if (!name.isEmpty())
        appendPathComponent(m_path, name);
    const auto entries = folder.entries();
    std::vector<FolderInfo> children;
    // With the files summed away the entries are nearly all sub-folders: one allocation each.
    if (folder.summedCount() > 0 || entries.size() > 1)
        children.reserve(entries.size());
    m_stack.push_back(Frame{entries.data(), entries.data() + entries.size(), name.isEmpty(),
                            std::move(location), parentPathLength, depth, color,
                            folder.summedSize(), folder.summedCount(), 0, std::move(children)});
}

void SubtreeBuilder::visit(Frame& frame, const ListedEntry& entry) {
    if (entry.kind() != EntryKind::directory) {
        const std::optional<qint64> size = entry.ownSize();
        addSaturating(frame.totalSize, size ? *size : unlistedEntrySize(entry.name()));
        frame.fileCount += 1;
        return;
    }
    const FolderColor color = folderColorAt(frame.subfolderCount++);
    if (!isListed(entry.contents())) {
        // An empty leaf, which its parent drops at once; it still counts as processed.
        m_progress.skipped();
        return;
    }
    if (const ReadyFolder* ready = readyFolder(entry.contents())) {
        if (ready->node) {
            if (*ready->node)
                adopt(frame, std::move(**ready->node));
            return;
        }
        enter(*entry.contents(), entry.name(), ready->location, frame.depth + 1, color);
        return;
    }
    // Made here, before the folder's own entries, so that each sub-folder's path shares it.
    FolderPath location(frame.location, pathFromBytes(entry.name()));
    enter(*entry.contents(), entry.name(), std::move(location), frame.depth + 1,
          color); // invalidates `frame`
}

const ReadyFolder* SubtreeBuilder::readyFolder(const ListedDirectory* folder) const {
    if (!m_ready)
        return nullptr;
    const auto found = m_ready->find(folder);
    return found == m_ready->end() ? nullptr : &found->second;
}

void SubtreeBuilder::adopt(Frame& parent, FolderInfo&& node) {
    addSaturating(parent.totalSize, node.totalSize);
    parent.fileCount += node.fileCount;
    parent.children.push_back(std::move(node));
}

std::optional<FolderInfo> SubtreeBuilder::finish(Frame& frame) {
    m_progress.finished([&] { return folderName(frame); });
    if (!frame.isRoot && frame.totalSize < 1 && frame.children.empty())
        return std::nullopt;
    // Stable, so that folders of equal size keep their listing order. The sort's scratch buffer is
    // not worth asking for without two children to order.
    if (frame.children.size() > 1)
        std::stable_sort(
            frame.children.begin(), frame.children.end(),
            [](const FolderInfo& a, const FolderInfo& b) { return a.totalSize > b.totalSize; });
    FolderInfo node;
    node.name = folderName(frame);
    node.location = std::move(frame.location);
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
qint64 SubtreeBuilder::unlistedEntrySize(QByteArrayView name) const {
    QByteArray path = m_path;
    appendPathComponent(path, name);
    struct stat status;
    if (fstatat(AT_FDCWD, path.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return 0;
    return qint64(status.st_size);
}

QString SubtreeBuilder::folderName(const Frame& frame) const {
    return frame.isRoot ? m_rootName : frame.location.lastPart();
}

} // namespace tessarine
