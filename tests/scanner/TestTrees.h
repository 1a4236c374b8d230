#pragma once

#include "scanner/ListedEntry.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTemporaryDir>

#include <initializer_list>
#include <set>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace tessarine::testing {

// Writes a file of `size` bytes (creating missing parent folders) and returns its path.
QString writeFile(const QString& path, qint64 size);

// Writes each (path relative to root, size) pair with writeFile.
void writeFiles(const QString& root, std::initializer_list<std::pair<const char*, qint64>> files);

// Creates a file whose name is arbitrary bytes (invalid UTF-8 included) inside `folder`.
void writeRawNamedFile(const QString& folder, const QByteArray& name, qint64 size);
// Removes such a file: QTemporaryDir cannot, as its name does not survive decoding.
void removeRawNamedFile(const QString& folder, const QByteArray& name);

// A chain of nested folders named `name`, `depth` levels below `root`, each created relative to
// its parent's descriptor because the full path outgrows PATH_MAX. The innermost one holds a file
// "leaf.txt" of 1 byte.
void makeFolderChain(const QString& root, int depth, const char* name = "d");
// Takes such a chain apart (QDir::removeRecursively cannot reach past PATH_MAX).
void removeFolderChain(const QString& root, const char* name = "d");

// Such a chain for the length of a scope: made on construction, taken apart on destruction.
class FolderChain {
public:
    FolderChain(const QString& root, int depth)
        : m_root(root) {
        makeFolderChain(m_root, depth);
    }
    ~FolderChain() { removeFolderChain(m_root); }
    FolderChain(const FolderChain&) = delete;
    FolderChain& operator=(const FolderChain&) = delete;

private:
    QString m_root;
};

// Raw-named files for the length of a scope; file i holds firstSize + i * sizeStep bytes.
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

// A deterministic pseudo-random hierarchy of roughly `itemCount` files and folders with varied
// sizes, extensions, a few hidden entries, a package, symbolic links and empty folders.
void generateTree(const QString& root, int itemCount, unsigned seed);

// The size a walk in listing order counts for a file it meets: its own the first time, 0 for any
// later name of a file with several names.
class HardLinkCount {
public:
    qint64 sizeAt(const struct stat& status);

private:
    std::set<std::pair<dev_t, ino_t>> m_counted;
};

// One entry as a plain recursive readdir walk sees it, in pre-order with readdir's order.
struct WalkedItem {
    QByteArray path;
    EntryKind kind;
    qint64 size;
    qint64 modifiedMsecs;
    qint64 depth;

    bool operator==(const WalkedItem&) const = default;
};

// The reference: a sequential opendir/readdir/lstat walk with the same hidden, package and
// symbolic-link rules, written as plainly as possible.
std::vector<WalkedItem> referenceWalk(const QByteArray& root);

// Descriptors this process has open right now.
int openDescriptorCount();

// A temporary folder in memory (tmpfs) where the system offers one, else in the usual place: a
// disk file system can take seconds to make and remove thousands of folders, tmpfs a fraction.
QTemporaryDir makeFastTemporaryDir();

} // namespace tessarine::testing
