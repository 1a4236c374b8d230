#include "screens/dashboard/FileActions.h"

#include "screens/dashboard/SystemDesktopServices.h"

#include <QFileInfo>

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
    if (!QFileInfo::exists(path))
        return false;
    services().reveal(path);
    return true;
}

bool FileActions::open(const QString& path) const {
    if (!QFileInfo::exists(path))
        return false;
    services().open(path);
    return true;
}

void FileActions::copyPaths(const QStringList& paths) const {
    if (!paths.isEmpty())
        services().copyText(paths.join(QLatin1Char('\n')));
}

} // namespace tessarine
