#include "tree/FolderTreeAssembly.h"

#include "model/PathBytes.h"
#include "model/PathNames.h"
#include "tree/SubtreeBuilder.h"

#include <algorithm>
#include <thread>
#include <vector>

namespace tessarine {

namespace {

// Subtrees per thread: the smaller each is, the less one late large subtree leaves the other
// threads idle.
constexpr qint64 subtreesPerThread = 8;
// How far down the pass splits subtrees; a chain of single folders has nothing to share anyway.
constexpr qint64 deepestSplit = 32;

// A subtree built by one thread, and its finished node (empty when its parent drops it).
struct SharedSubtree {
    SubtreeStart start;
    qint64 folderCount;
    std::optional<FolderInfo> node;
};

// The listed folders below `root`, root first, depth first in listing order (so a folder's first
// listed sub-folder follows it, and each further one follows the subtree before it), with the
// number of listed folders in each one's subtree, itself included.
std::vector<qint64> listedSubtreeSizes(const ListedDirectory* root) {
    struct Pending {
        const ListedDirectory* folder;
        std::size_t parent;
    };
    std::vector<std::size_t> parents;
    std::vector<Pending> pending{{root, 0}};
    std::vector<const ListedDirectory*> children;
    while (!pending.empty()) {
        const Pending next = pending.back();
        pending.pop_back();
        const std::size_t index = parents.size();
        parents.push_back(next.parent);
        children.clear();
        for (const ListedEntry& entry : next.folder->entries()) {
            if (entry.kind() == EntryKind::directory && isListed(entry.contents()))
                children.push_back(entry.contents());
        }
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            pending.push_back({*child, index});
    }
    std::vector<qint64> sizes(parents.size(), 1);
    for (std::size_t index = sizes.size() - 1; index > 0; --index)
        sizes[parents[index]] += sizes[index];
    return sizes;
}

// Splits the subtree of `start` (at `index` in `sizes`) into subtrees of at most `largest`
// folders where its depth allows, each with the path and colour its parent's listing gives it.
// The locations of the folders split through go to `above`, for the builder that finishes them
// around the subtrees, whose paths share them.
void split(const SubtreeStart& start, std::size_t index, const std::vector<qint64>& sizes,
           qint64 largest, std::vector<SharedSubtree>& subtrees, ReadyFolders& above) {
    if (sizes[index] <= largest || start.depth == deepestSplit) {
        subtrees.push_back({start, sizes[index], std::nullopt});
        return;
    }
    above[start.folder].location = start.location;
    QByteArray path = start.parentPath;
    if (!start.name.isEmpty())
        appendPathComponent(path, start.name);
    qint64 position = 0;
    std::size_t child = index + 1;
    for (const ListedEntry& entry : start.folder->entries()) {
        if (entry.kind() != EntryKind::directory)
            continue;
        const FolderColor color = folderColorAt(position++);
        if (!isListed(entry.contents()))
            continue;
        split({entry.contents(), path, entry.name(),
               FolderPath(start.location, pathFromBytes(entry.name())), start.depth + 1, color},
              child, sizes, largest, subtrees, above);
        child += std::size_t(sizes[child]);
    }
}

// The subtrees to build side by side, largest first: the folders above them are few, and are
// finished afterwards (their locations go to `above`). None when there are not two to share out.
std::vector<SharedSubtree> sharedSubtrees(const SubtreeStart& root, int threadCount,
                                          ReadyFolders& above) {
    const std::vector<qint64> sizes = listedSubtreeSizes(root.folder);
    std::vector<SharedSubtree> subtrees;
    split(root, 0, sizes, std::max<qint64>(sizes[0] / (subtreesPerThread * threadCount), 1),
          subtrees, above);
    if (subtrees.size() < 2)
        return {};
    std::stable_sort(subtrees.begin(), subtrees.end(),
                     [](const auto& a, const auto& b) { return a.folderCount > b.folderCount; });
    return subtrees;
}

// Each thread takes the next subtree not yet taken; largest first, so the last to finish are small.
void buildSideBySide(std::vector<SharedSubtree>& subtrees, int threadCount,
                     const std::atomic<bool>& cancelled, AssemblyProgress& progress,
                     const QString& rootPath) {
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        SubtreeBuilder builder(cancelled, progress, rootPath);
        for (std::size_t taken; (taken = next.fetch_add(1)) < subtrees.size();) {
            SharedSubtree& subtree = subtrees[taken];
            subtree.node = builder.build(subtree.start);
        }
    };
    std::vector<std::jthread> helpers;
    for (int helper = 1; helper < threadCount; ++helper)
        helpers.emplace_back(work);
    work();
}

} // namespace

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
                                       FolderCallback onInterval, int threadCount)
    : m_cancelled(cancelled)
    , m_folderCount(folderCount)
    , m_threadCount(threadCount > 0 ? threadCount
                                    : std::max(1, int(std::thread::hardware_concurrency())))
    , m_progress(folderCount, updateInterval(folderCount), std::move(onInterval)) {}

std::optional<FolderInfo> FolderTreeAssembly::assemble(const DirectoryListing& listing,
                                                       const QString& rootPath) {
    if (!isListed(listing.root())) {
        // A root the walker could not open cannot be listed directly either: like any folder that
        // cannot be listed it is an empty leaf, counted but without a progress record.
        m_progress.skipped();
        FolderInfo leaf;
        leaf.location = FolderPath(rootPath);
        leaf.name = lastPathComponent(rootPath);
        return leaf;
    }
    const SubtreeStart root{listing.root(),  listing.rootPath(), {}, FolderPath(rootPath), 0,
                            folderColorAt(0)};
    std::vector<SharedSubtree> subtrees;
    ReadyFolders ready;
    if (m_threadCount > 1 && m_folderCount >= parallelFolderCount) {
        subtrees = sharedSubtrees(root, m_threadCount, ready);
        if (!subtrees.empty())
            buildSideBySide(subtrees, m_threadCount, m_cancelled, m_progress, rootPath);
    }
    for (SharedSubtree& subtree : subtrees)
        ready[subtree.start.folder].node = &subtree.node;
    SubtreeBuilder above(m_cancelled, m_progress, rootPath, &ready);
    std::optional<FolderInfo> tree = above.build(root);
    if (m_cancelled.load())
        return std::nullopt;
    return tree;
}

} // namespace tessarine
