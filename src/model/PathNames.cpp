#include "model/PathNames.h"

#include <QDir>
#include <QFileInfo>

namespace tessarine {

QString cleanRootPath(const QString& folderPath) {
    return QDir::cleanPath(QFileInfo(folderPath).absoluteFilePath());
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

QString scannedFolderName(const QString& rootPath) {
    if (rootPath.isEmpty())
        return QStringLiteral("Unknown");
    const QString name = lastPathComponent(rootPath);
    return name == u'/' ? QString() : name;
}

} // namespace tessarine
