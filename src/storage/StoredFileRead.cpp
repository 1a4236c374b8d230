#include "storage/StoredFileRead.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarine {

namespace {

// A stored result is a few hundred kilobytes; one carrying the folder tree of a hundred thousand
// folders is some 50 MB. Ten times that still leaves room for the largest trees a desktop can
// show, while a runaway file is refused before it takes gigabytes of memory.
constexpr qint64 largestStoredFile = 512 * 1024 * 1024;

StoredFileFailure systemFailure(int error) {
    return {QString::fromLocal8Bit(std::strerror(error)), error == ENOENT};
}

// Closes the descriptor on every way out.
class Descriptor {
public:
    explicit Descriptor(int fd)
        : m_fd(fd) {}
    ~Descriptor() {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return m_fd; }

private:
    int m_fd;
};

StoredFileFailure tooLarge() {
    return {QStringLiteral("File is larger than %1 bytes, more than any stored scan")
                .arg(largestStoredFile)};
}

} // namespace

std::variant<StoredFile, StoredFileFailure> readStoredFile(const QString& path) {
    // Without O_NONBLOCK, opening a pipe waits for a writer that may never come. What was opened
    // is checked afterwards, on the descriptor, so nothing can be swapped in between.
    const Descriptor file(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (file.get() < 0)
        return systemFailure(errno);
    struct stat status;
    if (::fstat(file.get(), &status) != 0)
        return systemFailure(errno);
    if (S_ISDIR(status.st_mode))
        return systemFailure(EISDIR);
    if (!S_ISREG(status.st_mode))
        return StoredFileFailure{QStringLiteral("Not a regular file")};
    if (status.st_size > largestStoredFile)
        return tooLarge();

    // The file may still grow while it is read, so the cap holds for what is read, not only for
    // what fstat said.
    QByteArray bytes(qsizetype(status.st_size) + 1, Qt::Uninitialized);
    qsizetype filled = 0;
    for (;;) {
        if (filled == bytes.size()) {
            if (filled > largestStoredFile)
                return tooLarge();
            bytes.resize(std::min<qsizetype>(filled * 2, largestStoredFile + 1));
        }
        const ssize_t got =
            ::read(file.get(), bytes.data() + filled, size_t(bytes.size() - filled));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return systemFailure(errno);
        if (got == 0)
            break;
        filled += got;
    }
    bytes.truncate(filled);
    return StoredFile{std::move(bytes), FileStamp::of(status)};
}

} // namespace tessarine
