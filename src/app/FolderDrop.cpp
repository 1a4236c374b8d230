#include "FolderDrop.h"

#include "model/PathBytes.h"
#include "scanner/PathAccess.h"

namespace tessarine {

bool FolderDrop::isFolder(const QUrl& url) {
    return url.isLocalFile() && tessarine::isFolder(pathFromUrl(url));
}

bool FolderDrop::isImportable(const QUrl& url) {
    return url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile();
}

} // namespace tessarine
