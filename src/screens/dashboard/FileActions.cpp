#include "screens/dashboard/FileActions.h"

#include "screens/dashboard/SystemDesktopServices.h"

#include "model/PathBytes.h"
#include "scanner/PathAccess.h"

namespace tessarine {

namespace {

DesktopServices* replacement = nullptr;

} // namespace

void FileActions::setServices(DesktopServices* services) {
    replacement = services;
}

DesktopServices& FileActions::services() {
    static SystemDesktopServices system;
    return replacement ? *replacement : system;
}

bool FileActions::reveal(const QString& path) const {
    if (!pathStatus(path))
        return false;
    services().reveal(urlFromPath(path));
    return true;
}

bool FileActions::open(const QString& path) const {
    if (!pathStatus(path))
        return false;
    services().open(urlFromPath(path));
    return true;
}

void FileActions::copyPaths(const QStringList& paths) const {
    if (!paths.isEmpty())
        services().copyText(pathToBytes(paths.join(QLatin1Char('\n'))));
}

} // namespace tessarine
