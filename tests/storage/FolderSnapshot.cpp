#include "FolderSnapshot.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace tessarine::testing {

QByteArray readBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QMap<QString, QByteArray> folderSnapshot(const QString& root) {
    QMap<QString, QByteArray> entries;
    QDirIterator it(root, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        entries.insert(path, it.fileInfo().isFile() ? readBytes(path) : QByteArray("<dir>"));
    }
    return entries;
}

} // namespace tessarine::testing
