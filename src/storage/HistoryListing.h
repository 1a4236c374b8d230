#pragma once

#include "storage/FileStamp.h"
#include "storage/StorageError.h"

#include <QList>
#include <QString>

#include <variant>

namespace tessarine {

struct ListedHistoryFile {
    QString name;
    FileStamp stamp;
};

// The files of the history folder that may hold a result, in listing order, each with the stamp
// of what its name leads to (a link is followed, as reading it does). Hidden entries are skipped,
// and only an exact lower-case "json" suffix counts, so that editor backups and other people's
// files in the folder are never tried. A folder that does not exist holds nothing; one that cannot
// be listed is an error. An entry gone before it could be looked at is left out.
std::variant<QList<ListedHistoryFile>, StorageError> listHistoryFiles(const QString& folder);

} // namespace tessarine
