#include "scanner/PathAccess.h"

#include "model/PathBytes.h"

#include <algorithm>
#include <climits>
#include <fcntl.h>
#include <unistd.h>

namespace tessarine {

namespace {

constexpr int passThroughFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;

// Opens `path` with `flags` a run of components at a time, each run short enough for the
// system, the folders on the way opened only to be passed through.
int openInPieces(const QByteArray& path, int flags) {
    if (path.size() < PATH_MAX)
        return ::open(path.constData(), flags);
    int fd = ::open("/", passThroughFlags);
    qsizetype at = 0;
    while (fd >= 0) {
        while (at < path.size() && path[at] == '/')
            ++at;
        qsizetype end = path.size();
        if (end - at >= PATH_MAX) {
            end = path.lastIndexOf('/', at + PATH_MAX - 1);
            if (end <= at) {
                close(fd);
                errno = ENAMETOOLONG;
                return -1;
            }
        }
        const bool last = end == path.size();
        const int next =
            openat(fd, path.mid(at, end - at).constData(), last ? flags : passThroughFlags);
        close(fd);
        if (last)
            return next;
        fd = next;
        at = end;
    }
    return -1;
}

} // namespace

int openFolder(const QByteArray& path) {
    return openInPieces(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

std::optional<struct stat> pathStatus(const QString& path) {
    const QByteArray bytes = pathToBytes(path);
    struct stat status;
    if (bytes.size() < PATH_MAX)
        return ::stat(bytes.constData(), &status) == 0 ? std::optional(status) : std::nullopt;
    const qsizetype slash = bytes.lastIndexOf('/');
    const int parent = openInPieces(bytes.left(std::max<qsizetype>(slash, 1)), passThroughFlags);
    if (parent < 0)
        return std::nullopt;
    const bool found = fstatat(parent, bytes.mid(slash + 1).constData(), &status, 0) == 0;
    close(parent);
    return found ? std::optional(status) : std::nullopt;
}

bool isFolder(const QString& path) {
    const std::optional<struct stat> status = pathStatus(path);
    return status && S_ISDIR(status->st_mode);
}

bool isListableFolder(const QString& path) {
    const int fd = openFolder(pathToBytes(path));
    if (fd < 0)
        return false;
    const bool reachable = faccessat(fd, ".", X_OK, AT_EACCESS) == 0;
    close(fd);
    return reachable;
}

} // namespace tessarine
