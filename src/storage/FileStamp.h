#pragma once

#include <QtGlobal>

#include <sys/stat.h>

namespace tessarine {

// Tells one version of a file from another without reading it. Size and modification time are
// what an editor or a copy changes; the change time and the inode also catch a file replaced by
// a rename or written back with its old modification time restored. What goes unseen is a
// rewrite in place, of the same size, within one tick of the file system's clock after the file
// was read; the history's own writers replace a file by renaming another over it.
struct FileStamp {
    qint64 size = 0;
    qint64 modifiedNs = 0;
    qint64 changedNs = 0;
    quint64 inode = 0;

    static FileStamp of(const struct stat& status);
    bool operator==(const FileStamp&) const = default;
};

} // namespace tessarine
