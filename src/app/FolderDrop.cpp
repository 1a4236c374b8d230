#include "FolderDrop.h"

#include <QFileInfo>

namespace tessarine {

bool FolderDrop::isFolder(const QUrl& url) {
    return url.isLocalFile() && QFileInfo(url.toLocalFile()).isDir();
}

bool FolderDrop::isImportable(const QUrl& url) {
    return url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile();
}

} // namespace tessarine
