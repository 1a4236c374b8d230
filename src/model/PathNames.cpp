#include "model/PathNames.h"

#include "model/PathBytes.h"

#include <QDir>

namespace tessarine {

QString cleanRootPath(const QString& folderPath) {
    if (folderPath.isEmpty() || folderPath.startsWith(u'/'))
        return QDir::cleanPath(folderPath);
    return QDir::cleanPath(currentFolderPath() + u'/' + folderPath);
}

QString parentFolder(QStringView path) {
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    const qsizetype slash = path.lastIndexOf(u'/');
    if (slash < 0)
        return QString();
    return slash == 0 ? QStringLiteral("/") : path.first(slash).toString();
}

QString lastPathComponent(QStringView path) {
    // The first character is never dropped, so a path of separators only keeps one: the root.
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    if (path == u"/")
        return path.toString();
    return path.sliced(path.lastIndexOf(u'/') + 1).toString();
}

} // namespace tessarine
