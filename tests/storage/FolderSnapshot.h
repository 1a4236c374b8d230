#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace tessarine::testing {

// The whole content of a file; empty when it cannot be read.
QByteArray readBytes(const QString& path);

// Every entry below root, hidden ones included, with the bytes of the files: a fingerprint that
// shows whether an operation wrote, renamed or removed anything at all.
QMap<QString, QByteArray> folderSnapshot(const QString& root);

} // namespace tessarine::testing
