#include "storage/FileStamp.h"

namespace tessarine {

namespace {

qint64 nanoseconds(const struct timespec& time) {
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

FileStamp FileStamp::of(const struct stat& status) {
    return {.size = qint64(status.st_size),
            .modifiedNs = nanoseconds(status.st_mtim),
            .changedNs = nanoseconds(status.st_ctim),
            .inode = quint64(status.st_ino)};
}

} // namespace tessarine
