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

// `folderCount` folders "folderN" below root, each holding `filesPerFolder` one-byte files "fileM".
void writeFolders(const QString& root, int folderCount, int filesPerFolder);

// The whole content of a file; empty when it cannot be read.
QByteArray readBytes(const QString& path);

// Every entry below root, hidden ones included, with the bytes of the files.
QMap<QString, QByteArray> folderSnapshot(const QString& root);

// Files named by arbitrary bytes for the length of a scope (QTemporaryDir cannot remove names
// that do not decode); file i holds firstSize + i * sizeStep bytes.
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

// For the length of a scope, `depth` nested folders "d" below root, the innermost holding a
// one-byte "leaf.txt"; made and removed through descriptors, as the path outgrows PATH_MAX.
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

// What a walk in listing order counts for a file: its size at its first name, 0 at later ones.
class HardLinkCount {
public:
    qint64 sizeAt(const struct stat& status);

private:
    std::set<std::pair<dev_t, ino_t>> m_counted;
};

// A temporary folder in tmpfs where there is one: a disk takes seconds for thousands of folders.
QTemporaryDir makeFastTemporaryDir();

} // namespace tessarine::testing
