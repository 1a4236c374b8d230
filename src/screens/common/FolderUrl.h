#pragma once

#include "model/PathBytes.h"

#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The file URL of a stored folder path. A path handed to QML as text would be parsed as a URL,
// losing "#" to a fragment and decoding "%41" into another name, so the URL is made here, with
// the bytes of a name that is not UTF-8.
class FolderUrl : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE static QUrl fromPath(const QString& path) { return urlFromPath(path); }
};

} // namespace tessarine
