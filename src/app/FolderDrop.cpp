#include "FolderDrop.h"

#include <QFileInfo>

namespace tessarine {

bool FolderDrop::isFolder(const QUrl& url) {
    return url.isLocalFile() && QFileInfo(url.toLocalFile()).isDir();
}

} // namespace tessarine
