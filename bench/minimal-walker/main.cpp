// minimal-walker DIR THREADS [--hidden]: the least a disk-usage walk has to do, as a floor for the
// others. It lists every folder (getdents through readdir) and reads the metadata of every entry
// that is not a folder (fstatat), on THREADS threads sharing one stack of folders. Like Tessarine
// it leaves out hidden entries and everything below them, so that both do the same work; with
// --hidden it takes them too, as Tessarine's scan --hidden does. Nothing is kept but two counters,
// which it prints so that a run can be checked against the others.

#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace {

using Folder = std::shared_ptr<DIR>;

// A folder still to be listed: its name inside a parent that stays open until every such child
// has been opened.
struct Pending {
    Folder parent;
    std::string name;
};

class Walk {
public:
    Walk(Folder root, bool hiddenToo)
        : m_hiddenToo(hiddenToo) {
        m_stack.push_back({std::move(root), std::string()});
    }

    void work() {
        while (auto pending = take()) {
            list(*pending);
            std::lock_guard lock(m_mutex);
            if (--m_busy == 0 && m_stack.empty()) {
                m_done = true;
                m_ready.notify_all();
            }
        }
    }

    long long entries() const { return m_entries; }
    long long bytes() const { return m_bytes; }

private:
    std::unique_ptr<Pending> take() {
        std::unique_lock lock(m_mutex);
        m_ready.wait(lock, [this] { return !m_stack.empty() || m_done; });
        if (m_stack.empty())
            return nullptr;
        auto pending = std::make_unique<Pending>(std::move(m_stack.back()));
        m_stack.pop_back();
        ++m_busy;
        return pending;
    }

    void list(const Pending& pending) {
        Folder folder = pending.name.empty() ? pending.parent : open(pending);
        if (!folder)
            return;
        const int fd = dirfd(folder.get());
        std::vector<std::string> children;
        long long entries = 0;
        long long bytes = 0;
        while (const dirent* entry = readdir(folder.get())) {
            const std::string_view name = entry->d_name;
            if (name == "." || name == ".." || (!m_hiddenToo && name.front() == '.'))
                continue;
            ++entries;
            if (entry->d_type == DT_DIR) {
                children.emplace_back(name);
                continue;
            }
            struct stat status;
            if (fstatat(fd, entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
                continue;
            if (S_ISDIR(status.st_mode))
                children.emplace_back(name);
            else
                bytes += status.st_size;
        }
        m_entries += entries;
        m_bytes += bytes;
        std::lock_guard lock(m_mutex);
        for (auto it = children.rbegin(); it != children.rend(); ++it)
            m_stack.push_back({folder, std::move(*it)});
        m_ready.notify_all();
    }

    static Folder open(const Pending& pending) {
        const int fd = openat(dirfd(pending.parent.get()), pending.name.c_str(),
                              O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        DIR* folder = fd < 0 ? nullptr : fdopendir(fd);
        return folder ? Folder(folder, closedir) : nullptr;
    }

    const bool m_hiddenToo;
    std::mutex m_mutex;
    std::condition_variable m_ready;
    std::vector<Pending> m_stack; // last in, first out: depth-first, so few folders stay open
    int m_busy = 0;
    bool m_done = false;
    std::atomic<long long> m_entries{0};
    std::atomic<long long> m_bytes{0};
};

} // namespace

int main(int argc, char** argv) {
    const bool hiddenToo = argc == 4 && std::string_view(argv[3]) == "--hidden";
    const int threads = argc == 3 || hiddenToo ? std::atoi(argv[2]) : 0;
    if (threads < 1) {
        std::fputs("usage: minimal-walker DIR THREADS [--hidden]\n", stderr);
        return 2;
    }
    DIR* root = opendir(argv[1]);
    if (!root) {
        std::perror(argv[1]);
        return 1;
    }
    Walk walk(Folder(root, closedir), hiddenToo);
    std::vector<std::thread> workers;
    for (int i = 0; i < threads; ++i)
        workers.emplace_back([&walk] { walk.work(); });
    for (std::thread& worker : workers)
        worker.join();
    std::printf("entries %lld bytes %lld\n", walk.entries(), walk.bytes());
    return 0;
}
