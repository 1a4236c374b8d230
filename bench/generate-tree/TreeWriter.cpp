#include "TreeWriter.h"

#include <cerrno>
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarine::bench {

namespace {

[[noreturn]] void fail(const char* call, const std::string& path) {
    throw std::runtime_error(std::string(call) + " " + path + ": " + std::strerror(errno));
}

bool isHidden(const std::string& name) {
    return !name.empty() && name.front() == '.';
}

std::string lastComponent(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string absolute(const std::string& root, const std::string& relative) {
    return relative.empty() ? root : root + "/" + relative;
}

// Keeps the one folder being filled open, so every file is created relative to it with openat
// rather than through a full path lookup.
class FolderHandle {
public:
    FolderHandle(const TreePlan& plan, const std::string& root)
        : m_plan(plan)
        , m_root(root) {}
    FolderHandle(const FolderHandle&) = delete;
    FolderHandle& operator=(const FolderHandle&) = delete;
    ~FolderHandle() { closeCurrent(); }

    int descriptorOf(std::size_t folder) {
        if (m_descriptor >= 0 && folder == m_folder)
            return m_descriptor;
        closeCurrent();
        const std::string path = pathOf(folder);
        m_descriptor = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (m_descriptor < 0)
            fail("open", path);
        m_folder = folder;
        return m_descriptor;
    }

    std::string pathOf(std::size_t folder) const {
        return absolute(m_root, m_plan.folders[folder].path);
    }

private:
    void closeCurrent() {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
        m_descriptor = -1;
    }

    const TreePlan& m_plan;
    const std::string& m_root;
    int m_descriptor = -1;
    std::size_t m_folder = 0;
};

void writeFolders(const TreePlan& plan, const std::string& root, TreeSummary& summary) {
    if (::mkdir(root.c_str(), 0755) != 0)
        fail("mkdir", root);
    for (std::size_t index = 1; index < plan.folders.size(); ++index) {
        const std::string path = absolute(root, plan.folders[index].path);
        if (::mkdir(path.c_str(), 0755) != 0)
            fail("mkdir", path);
        ++summary.folders;
        summary.hiddenItems += isHidden(lastComponent(path));
    }
}

void writeFile(int folder, const PlannedFile& file, const std::string& folderPath) {
    const int descriptor =
        ::openat(folder, file.name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (descriptor < 0)
        fail("create", folderPath + "/" + file.name);
    const timespec times[2] = {{file.modifiedAt, 0}, {file.modifiedAt, 0}};
    const bool written =
        ::ftruncate(descriptor, file.size) == 0 && ::futimens(descriptor, times) == 0;
    const int savedErrno = errno;
    ::close(descriptor);
    errno = savedErrno;
    if (!written)
        fail("size", folderPath + "/" + file.name);
}

void writeFiles(const TreePlan& plan, FolderHandle& folders, TreeSummary& summary) {
    for (const PlannedFile& file : plan.files) {
        writeFile(folders.descriptorOf(file.folder), file, folders.pathOf(file.folder));
        ++summary.files;
        summary.hiddenItems += isHidden(file.name);
        summary.apparentBytes += file.size;
    }
}

void writeLinks(const TreePlan& plan, FolderHandle& folders, TreeSummary& summary) {
    for (const PlannedLink& link : plan.links) {
        if (::symlinkat(link.target.c_str(), folders.descriptorOf(link.folder),
                        link.name.c_str()) != 0)
            fail("symlink", folders.pathOf(link.folder) + "/" + link.name);
        ++summary.links;
    }
}

} // namespace

TreeSummary writeTree(const TreePlan& plan, const std::string& root) {
    TreeSummary summary;
    writeFolders(plan, root, summary);
    FolderHandle folders(plan, root);
    writeFiles(plan, folders, summary);
    writeLinks(plan, folders, summary);
    return summary;
}

} // namespace tessarine::bench
