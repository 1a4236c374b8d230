#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <sys/stat.h>

// The few questions the program asks about a path outside a walk, by the path's own bytes (see
// model/PathBytes.h) and whatever its length: the system refuses a path of more than 4,096 bytes
// in one piece, and Qt's file classes lose bytes that are not UTF-8.
namespace tessarine {

// A descriptor of the folder at the absolute `path`, open for listing (a symbolic link at its end
// is followed); -1 with errno set when it cannot be opened.
int openFolder(const QByteArray& path);

// What stat() says of the item at the absolute `path`, links followed; nullopt when it is gone.
std::optional<struct stat> pathStatus(const QString& path);

bool isFolder(const QString& path);

// Whether the folder at `path` can be listed and its items reached.
bool isListableFolder(const QString& path);

} // namespace tessarine
