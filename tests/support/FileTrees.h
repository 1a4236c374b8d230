#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

#include <initializer_list>
#include <set>
#include <utility>

#include <sys/stat.h>

// Real folders and files for tests, made in temporary folders. Every writer creates the folders
// above what it writes and throws std::runtime_error when the file system refuses, so that no test
// goes on with half a fixture.
namespace tessarine::testing {

// A file of `size` bytes, or holding `bytes`; returns its path.
QString writeFile(const QString& path, qint64 size);
QString writeFile(const QString& path, const QByteArray& bytes);

// Each (path relative to root, size) pair written with writeFile.
void writeFiles(const QString& root, std::initializer_list<std::pair<const char*, qint64>> files);

// `folderCount` folders "folderN" directly below root, each holding `filesPerFolder` one-byte
// files "fileM": enough work to catch a scan or a tree build in the middle, and sizes that are
// easy to add up.
void writeFolders(const QString& root, int folderCount, int filesPerFolder);

// The whole content of a file; empty when it cannot be read.
QByteArray readBytes(const QString& path);

// Every entry below root, hidden ones included, with the bytes of the files: a fingerprint that
// shows whether an operation wrote, renamed or removed anything at all.
QMap<QString, QByteArray> folderSnapshot(const QString& root);

// Files whose names are arbitrary bytes (invalid UTF-8 included) for the length of a scope; file
// i holds firstSize + i * sizeStep bytes. QTemporaryDir cannot remove them itself, as their names
// do not survive decoding.
class RawNamedFiles {
public:
    RawNamedFiles(const QString& folder, const QList<QByteArray>& names, qint64 firstSize,
                  qint64 sizeStep = 0);
    ~RawNamedFiles();
    RawNamedFiles(const RawNamedFiles&) = delete;
    RawNamedFiles& operator=(const RawNamedFiles&) = delete;

private:
    QString m_folder;
    QList<QByteArray> m_names;
};

// For the length of a scope, a chain of `depth` nested folders "d" below root whose innermost one
// holds a one-byte "leaf.txt". Each level is made relative to its parent's descriptor because the
// full path outgrows PATH_MAX, which is also why QDir::removeRecursively cannot take it apart.
class FolderChain {
public:
    FolderChain(const QString& root, int depth);
    ~FolderChain();
    FolderChain(const FolderChain&) = delete;
    FolderChain& operator=(const FolderChain&) = delete;

private:
    QString m_root;
};

// A deterministic pseudo-random hierarchy of roughly `itemCount` files and folders with varied
// sizes and extensions, empty files and folders, hidden entries, a package, a named pipe and
// symbolic links to files, to folders and to nothing.
void generateTree(const QString& root, int itemCount, unsigned seed);

// Descriptors this process has open right now.
int openDescriptorCount();

// The size a plain walk in listing order counts for a file it meets: its own the first time, 0
// for any later name of a file with several names.
class HardLinkCount {
public:
    qint64 sizeAt(const struct stat& status);

private:
    std::set<std::pair<dev_t, ino_t>> m_counted;
};

// A temporary folder in memory (tmpfs) where the system offers one, else in the usual place: a
// disk file system can take seconds to make and remove thousands of folders, tmpfs a fraction.
QTemporaryDir makeFastTemporaryDir();

} // namespace tessarine::testing
