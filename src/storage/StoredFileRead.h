#pragma once

#include "storage/FileStamp.h"

#include <QByteArray>
#include <QString>

#include <variant>

namespace tessarine {

// The whole content of one history file, or why it was not read. Only a regular file is read, and
// only up to a size no stored result comes near: a name in the history folder may just as well be
// a pipe that never ends, a device that never runs dry, a folder, or a link to any of them.
// The stamp is the opened file's, so it names the version that was read even when the name was
// given to another file since it was listed.
struct StoredFile {
    QByteArray bytes;
    FileStamp stamp;
};

struct StoredFileFailure {
    QString reason;
    // Nothing had the name any more: a file deleted after it was listed is gone, not broken.
    bool vanished = false;
};

std::variant<StoredFile, StoredFileFailure> readStoredFile(const QString& path);

} // namespace tessarine
