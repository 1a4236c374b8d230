#pragma once

#include <QByteArray>
#include <QString>

#include <variant>

namespace tessarine {

// The whole content of one history file, or why it was not read. Only a regular file is read, and
// only up to a size no stored result comes near: a name in the history folder may just as well be
// a pipe that never ends, a device that never runs dry, a folder, or a link to any of them.
std::variant<QByteArray, QString> readStoredFile(const QString& path);

} // namespace tessarine
