#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// What a drop onto the window may start a scan with: a local folder. Desktop file managers do not
// mark folder URLs with a trailing slash, so the file system is asked instead.
class FolderDrop : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    // True for a local URL naming an existing folder (a symbolic link to one included, since the
    // user dropped it on purpose); false for files, vanished paths and remote URLs.
    Q_INVOKABLE static bool isFolder(const QUrl& url);
    // True for a local URL naming a file that is not a folder: a scan made elsewhere to import
    // (an ncdu export, a Tessarine result), which the import itself then checks.
    Q_INVOKABLE static bool isImportable(const QUrl& url);
};

} // namespace tessarine
