#include "storage/HistoryListing.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>

namespace tessarine {

namespace {

bool mayHoldResult(const char* name) {
    const std::size_t length = std::strlen(name);
    return name[0] != '.' && length > 5 && std::strcmp(name + length - 5, ".json") == 0;
}

StorageError listingError(const QString& folder, int error) {
    return {FileSystemError::about(u"list", folder, QString::fromLocal8Bit(std::strerror(error)))};
}

} // namespace

std::variant<QList<ListedHistoryFile>, StorageError> listHistoryFiles(const QString& folder) {
    // Plain POSIX rather than QDir, which turns an unreadable folder into an empty list, and
    // than std::filesystem, which stats every entry again: ten thousand files are listed at
    // every change in the folder.
    DIR* directory = ::opendir(QFile::encodeName(folder).constData());
    if (!directory) {
        if (errno == ENOENT)
            return QList<ListedHistoryFile>{};
        return listingError(folder, errno);
    }
    QList<ListedHistoryFile> files;
    const int descriptor = ::dirfd(directory);
    errno = 0;
    while (const dirent* entry = ::readdir(directory)) {
        if (mayHoldResult(entry->d_name)) {
            struct stat status;
            if (::fstatat(descriptor, entry->d_name, &status, 0) == 0)
                files.append({QFile::decodeName(entry->d_name), FileStamp::of(status)});
            else if (errno != ENOENT) // a link loop or the like: reading it will say why
                files.append({QFile::decodeName(entry->d_name), FileStamp{}});
        }
        errno = 0;
    }
    const int readError = errno;
    ::closedir(directory);
    if (readError != 0)
        return listingError(folder, readError);
    return files;
}

} // namespace tessarine
