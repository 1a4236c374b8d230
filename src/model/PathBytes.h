#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QUrl>

// Names on a disk are bytes, most of them UTF-8 but not all (an old Latin-1 disk, a broken
// archive). Inside the program each byte that is not part of valid UTF-8 is the unpaired
// surrogate U+DC00 + byte (U+DC80 to U+DCFF, as Python's "surrogateescape"), so that a name keeps
// its bytes through the records, the history and back to the disk, and two names that differ
// only in such a byte stay two. Every path read from or handed to the system goes through here.
namespace tessarine {

QString pathFromBytes(QByteArrayView bytes);
QByteArray pathToBytes(QStringView path);

// What a person is shown: every unpaired surrogate as U+FFFD.
QString pathForDisplay(const QString& path);

// A local file URL carries the bytes percent-encoded, so the desktop reaches the same file.
QUrl urlFromPath(QStringView path);
// The path of a local file URL, by its percent-encoded bytes; "" for any other URL.
QString pathFromUrl(const QUrl& url);

// The program's arguments, each decoded as a path would be.
QStringList argumentsFromBytes(int argc, const char* const* argv);

// The process's working folder, however long its path (QDir::currentPath gives "" beyond 4,096
// bytes).
QString currentFolderPath();

} // namespace tessarine
