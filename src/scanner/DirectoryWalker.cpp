#include "scanner/DirectoryWalker.h"

#include "scanner/DirectoryReader.h"
#include "scanner/HardLinks.h"
#include "scanner/PathAccess.h"

#include "model/PathBytes.h"

#include <algorithm>
#include <condition_variable>
#include <fcntl.h>
#include <memory>
#include <mutex>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace tessarine {

namespace {

constexpr int openFolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

// A deep walk may hold one descriptor per level that still has sub-folders waiting, so allow as
// many as the system lets this process have. Returns the resulting soft limit.
int raiseOpenFileLimit() {
    static const int limit = [] {
        rlimit limits{};
        if (getrlimit(RLIMIT_NOFILE, &limits) != 0)
            return 1024;
        if (limits.rlim_cur < limits.rlim_max) {
            rlimit raised = limits;
            raised.rlim_cur = limits.rlim_max;
            if (setrlimit(RLIMIT_NOFILE, &raised) == 0)
                limits = raised;
        }
        return int(std::min<rlim_t>(limits.rlim_cur, 1 << 30));
    }();
    return limit;
}

// Threads that wait on the disk take no core: with only one thread per core, a walk of folders
// that are not in the page cache has one request in flight per core and the disk sits mostly
// idle. A few threads more keep it busy; once everything is cached they cost next to nothing,
// since the threads then just take turns on the cores.
constexpr int threadsBeyondCores = 6;

// The nice value of threads that give way to an interface: a tenth of its weight each, so that its
// frames go first, yet not so low that other busy processes starve them of the cores altogether
// (at 19 the app's scan fell further behind the command line's while other builds ran).
constexpr int yieldingNice = 10;

std::atomic<bool> extraThreadsYield{false};

std::size_t cores() {
    return std::max(1u, std::thread::hardware_concurrency());
}

int defaultThreadCount() {
    return int(cores()) + threadsBeyondCores;
}

// A folder's descriptor kept open while some of its sub-folders still wait to be opened
// relative to it; the last of them to be opened closes it.
struct HeldDescriptor {
    int fd;
    std::atomic<int> waiting;
};

// What a finished walk hands over to its listing.
struct WalkOutcome {
    std::vector<ListingArena> arenas;
    const ListedDirectory* root;
    qint64 items;
    qint64 folders;
    bool cancelled;
};

struct PendingFolder {
    ListedDirectory* folder;
    HeldDescriptor* parent; // null: reopen from the root
};

// The state of one walk, shared by its worker threads.
class WalkSession {
public:
    WalkSession(const DirectoryWalker::Options& options, const QByteArray& rootPath,
                int threadCount);
    ~WalkSession();

    WalkOutcome run();

private:
    void work(std::size_t worker);
    std::optional<PendingFolder> take();
    void listFolder(std::size_t worker, std::optional<DirectoryReader>& reader,
                    const PendingFolder& pending);
    void queueSubfolders(std::span<ListedDirectory* const> subfolders, int fd);
    int open(const PendingFolder& pending);
    int openRoot();
    int openFromRoot(const ListedDirectory* folder) const;
    void release(HeldDescriptor* held);
    bool isCancelled() const { return m_cancelled && m_cancelled->load(std::memory_order_relaxed); }
    void reportProgress();
    const ListedDirectory* unansweredFolder();

    const DirectoryWalker::Options& m_options;
    const std::atomic<bool>* m_cancelled;
    const std::atomic<bool> m_neverCancelled{false};
    const QByteArray& m_rootPath;
    std::vector<ListingArena> m_arenas;
    ListedDirectory* m_root;
    // Set by the worker that opens the root, before any folder below it is queued (under
    // m_mutex), so every other worker sees them.
    int m_rootFd = -1;
    dev_t m_rootDevice = 0;
    const int m_heldLimit;
    HardLinkClaims m_hardLinks;

    std::mutex m_mutex;
    std::condition_variable m_workAvailable;
    std::condition_variable m_finished;
    std::vector<PendingFolder> m_stack; // LIFO keeps the walk depth-first
    int m_busyWorkers = 0;
    int m_idleWorkers = 0; // waiting for a folder
    bool m_done = false;

    std::atomic<qint64> m_items{0};
    std::atomic<qint64> m_folders{0};
    std::atomic<int> m_heldCount{0};
    std::atomic<const ListedDirectory*> m_recentFolder{nullptr};

    // The folder each worker is opening and listing, null between folders.
    std::unique_ptr<std::atomic<const ListedDirectory*>[]> m_listing;
    // Each worker's folder at the reports, and since when it has been the same (run() only).
    struct Watched {
        const ListedDirectory* folder = nullptr;
        std::chrono::steady_clock::time_point since;
    };
    std::vector<Watched> m_watched;
};

WalkSession::WalkSession(const DirectoryWalker::Options& options, const QByteArray& rootPath,
                         int threadCount)
    : m_options(options)
    , m_cancelled(options.cancelled ? options.cancelled : &m_neverCancelled)
    , m_rootPath(rootPath)
    , m_arenas(std::size_t(threadCount))
    , m_root(m_arenas.front().make<ListedDirectory>(nullptr, QByteArrayView()))
    , m_heldLimit(options.maxHeldDescriptors > 0 ? options.maxHeldDescriptors
                                                 : std::max(16, raiseOpenFileLimit() / 2))
    , m_hardLinks(options.detail.summedFiles)
    , m_listing(new std::atomic<const ListedDirectory*>[std::size_t(threadCount)] {})
    , m_watched(std::size_t(threadCount)) {
    m_stack.push_back({m_root, nullptr});
}

WalkSession::~WalkSession() {
    if (m_rootFd >= 0)
        close(m_rootFd);
}

WalkOutcome WalkSession::run() {
    std::vector<std::thread> workers;
    const bool extrasYield = extraThreadsYield.load(std::memory_order_relaxed);
    for (std::size_t i = 0; i < m_arenas.size(); ++i)
        workers.emplace_back([this, i, yield = extrasYield && i >= cores()] {
            if (yield)
                setpriority(PRIO_PROCESS, id_t(gettid()), yieldingNice);
            work(i);
        });
    {
        std::unique_lock lock(m_mutex);
        while (!m_done) {
            const bool finished = m_finished.wait_for(lock, m_options.progressInterval,
                                                      [this] { return m_done || isCancelled(); });
            if (isCancelled()) {
                m_workAvailable.notify_all(); // idle workers sleep until told
                break;
            }
            if (!finished) {
                lock.unlock();
                reportProgress();
                lock.lock();
            }
        }
    }
    for (std::thread& worker : workers)
        worker.join();
    // A cancelled walk leaves folders that nobody will open; let go of their parents.
    for (const PendingFolder& pending : m_stack)
        release(pending.parent);
    m_hardLinks.settle();
    const ListedDirectory* root = m_rootFd < 0 ? nullptr : m_root;
    return {std::move(m_arenas), root, m_items, m_folders, isCancelled()};
}

void WalkSession::work(std::size_t worker) {
    // Made at the first folder, once the root is open and its device known.
    std::optional<DirectoryReader> reader;
    while (const std::optional<PendingFolder> pending = take()) {
        m_listing[worker].store(pending->folder, std::memory_order_release);
        listFolder(worker, reader, *pending);
        m_listing[worker].store(nullptr, std::memory_order_relaxed);
        std::lock_guard lock(m_mutex);
        if (--m_busyWorkers == 0 && m_stack.empty()) {
            m_done = true;
            m_workAvailable.notify_all();
            m_finished.notify_all();
        }
    }
}

std::optional<PendingFolder> WalkSession::take() {
    std::unique_lock lock(m_mutex);
    ++m_idleWorkers;
    m_workAvailable.wait(lock, [this] { return !m_stack.empty() || m_done || isCancelled(); });
    --m_idleWorkers;
    if (m_stack.empty() || isCancelled())
        return std::nullopt;
    const PendingFolder pending = m_stack.back();
    m_stack.pop_back();
    ++m_busyWorkers;
    return pending;
}

void WalkSession::listFolder(std::size_t worker, std::optional<DirectoryReader>& reader,
                             const PendingFolder& pending) {
    const int fd = open(pending);
    release(pending.parent);
    if (fd < 0) {
        pending.folder->markUnreadable();
        return;
    }
    if (!reader)
        reader.emplace(m_arenas[worker], m_hardLinks, m_options.detail, m_options.scanOptions,
                       m_rootDevice);
    const auto subfolders = reader->read(fd, *pending.folder, *m_cancelled);
    m_items.fetch_add(qint64(pending.folder->entries().size()) + pending.folder->summedCount(),
                      std::memory_order_relaxed);
    m_folders.fetch_add(reader->lastFolderCount(), std::memory_order_relaxed);
    m_recentFolder.store(pending.folder, std::memory_order_release);
    queueSubfolders(subfolders, fd);
}

void WalkSession::queueSubfolders(std::span<ListedDirectory* const> subfolders, int fd) {
    HeldDescriptor* held = nullptr;
    if (!subfolders.empty() && m_heldCount.fetch_add(1) < m_heldLimit) {
        held = new HeldDescriptor{fd, int(subfolders.size())};
    } else {
        if (!subfolders.empty())
            m_heldCount.fetch_sub(1);
        close(fd);
    }
    std::lock_guard lock(m_mutex);
    // Pushed last to first so that the first sub-folder is taken next: the walk stays depth-first
    // in listing order, which keeps few descriptors held and the stack short.
    for (auto it = subfolders.rbegin(); it != subfolders.rend(); ++it)
        m_stack.push_back({*it, held});
    // One waiting worker per new folder: with more workers than cores, waking them all for a
    // folder or two would have most of them contend for the lock only to sleep again.
    const std::size_t wake = std::min(subfolders.size(), std::size_t(m_idleWorkers));
    for (std::size_t i = 0; i < wake; ++i)
        m_workAvailable.notify_one();
}

int WalkSession::open(const PendingFolder& pending) {
    const ListedDirectory* folder = pending.folder;
    if (!folder->parent())
        return openRoot();
    if (pending.parent)
        return openat(pending.parent->fd, folder->name().data(), openFolderFlags);
    return openFromRoot(folder);
}

// The root is opened by a worker like any folder, so that the reports name it too when it is the
// one that keeps the walk waiting (a hung mount chosen as the root itself).
int WalkSession::openRoot() {
    const int fd = openFolder(m_rootPath);
    if (fd < 0)
        return -1;
    // One stat per walk, and only when the walk is to stay on the root's file system.
    struct stat status {};
    if (m_options.scanOptions.oneFileSystem && fstat(fd, &status) != 0) {
        close(fd);
        return -1;
    }
    m_rootDevice = status.st_dev;
    m_rootFd = fd;
    return fcntl(m_rootFd, F_DUPFD_CLOEXEC, 0);
}

// The slow way, used only when too many parent descriptors are held already: one openat per
// level, never more than two descriptors at a time.
int WalkSession::openFromRoot(const ListedDirectory* folder) const {
    std::vector<const ListedDirectory*> chain;
    for (; folder->parent(); folder = folder->parent())
        chain.push_back(folder);
    int fd = m_rootFd;
    for (auto it = chain.rbegin(); it != chain.rend() && fd >= 0; ++it) {
        const int next = openat(fd, (*it)->name().data(), openFolderFlags);
        if (fd != m_rootFd)
            close(fd);
        fd = next;
    }
    return fd;
}

void WalkSession::release(HeldDescriptor* held) {
    if (held && held->waiting.fetch_sub(1) == 1) {
        close(held->fd);
        m_heldCount.fetch_sub(1);
        delete held;
    }
}

void WalkSession::reportProgress() {
    if (!m_options.onProgress)
        return;
    WalkProgress progress;
    progress.items = m_items.load(std::memory_order_relaxed);
    progress.folders = m_folders.load(std::memory_order_relaxed);
    // The parent links and names of a listed folder never change, so reading them while other
    // folders are still being filled is safe.
    if (const ListedDirectory* recent = m_recentFolder.load(std::memory_order_acquire))
        progress.recentFolderPath = recent->pathBelow(m_rootPath);
    // Its name and parent were set before the worker took it, so they are safe to read too.
    if (const ListedDirectory* unanswered = unansweredFolder())
        progress.unansweredFolderPath = unanswered->pathBelow(m_rootPath);
    m_options.onProgress(progress);
}

// Told apart at the reports rather than timed by the workers, which would cost a clock reading
// per folder: a folder seen on the same worker at two reports has been waited on all along, as
// each folder is listed once.
const ListedDirectory* WalkSession::unansweredFolder() {
    const auto now = std::chrono::steady_clock::now();
    const Watched* longest = nullptr;
    for (std::size_t worker = 0; worker < m_watched.size(); ++worker) {
        Watched& watched = m_watched[worker];
        const ListedDirectory* folder = m_listing[worker].load(std::memory_order_acquire);
        if (folder != watched.folder)
            watched = {folder, now};
        else if (folder && (!longest || watched.since < longest->since))
            longest = &watched;
    }
    if (!longest || now - longest->since < DirectoryWalker::unansweredAfter)
        return nullptr;
    return longest->folder;
}

} // namespace

void DirectoryWalker::setExtraThreadsYield(bool yield) {
    extraThreadsYield.store(yield, std::memory_order_relaxed);
}

DirectoryListing DirectoryWalker::walk(const QString& rootPath) const {
    const QByteArray encodedRoot = pathToBytes(rootPath);
    // The root is the one path followed even when it is a symbolic link: the user chose it.
    DirectoryListing listing;
    listing.m_rootPath = encodedRoot;
    const int threads = m_options.threadCount > 0 ? m_options.threadCount : defaultThreadCount();
    WalkOutcome outcome = WalkSession(m_options, encodedRoot, threads).run();
    listing.m_arenas = std::move(outcome.arenas);
    listing.m_root = outcome.root;
    listing.m_itemCount = outcome.items;
    listing.m_folderCount = outcome.folders;
    listing.m_cancelled = outcome.cancelled;
    return listing;
}

} // namespace tessarine
