#include "FolderDrop.h"

#include "model/PathBytes.h"
#include "scanner/PathAccess.h"

#include <sys/stat.h>

namespace tessarine {

bool FolderDrop::isFolder(const QUrl& url) {
    return url.isLocalFile() && tessarine::isFolder(pathFromUrl(url));
}

bool FolderDrop::isImportable(const QUrl& url) {
    if (!url.isLocalFile())
        return false;
    const std::optional<struct stat> status = pathStatus(pathFromUrl(url));
    return status && S_ISREG(status->st_mode);
}

} // namespace tessarine
