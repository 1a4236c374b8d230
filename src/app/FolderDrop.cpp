#include "FolderDrop.h"

#include "model/PathBytes.h"
#include "scanner/PathAccess.h"

namespace tessarine {

bool FolderDrop::isFolder(const QUrl& url) {
    return url.isLocalFile() && tessarine::isFolder(pathFromUrl(url));
}

} // namespace tessarine
