#include "TestTrees.h"

#include "scanner/ItemNameRules.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <dirent.h>
#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarine::testing {

namespace {

void require(bool ok, const char* what) {
    if (!ok)
        throw std::runtime_error(what);
}

} // namespace

QString writeFile(const QString& path, qint64 size) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    require(file.open(QIODevice::WriteOnly), "cannot create test file");
    if (size > 0)
        require(file.write(QByteArray(size, 'x')) == size, "cannot fill test file");
    return path;
}

void writeFiles(const QString& root, std::initializer_list<std::pair<const char*, qint64>> files) {
    for (const auto& [path, size] : files)
        writeFile(root + '/' + QString::fromUtf8(path), size);
}

void writeRawNamedFile(const QString& folder, const QByteArray& name, qint64 size) {
    const QByteArray path = QFile::encodeName(folder) + '/' + name;
    const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    require(fd >= 0, "cannot create raw-named file");
    const QByteArray content(size, 'x');
    require(::write(fd, content.constData(), std::size_t(size)) == size, "cannot fill file");
    ::close(fd);
}

void removeRawNamedFile(const QString& folder, const QByteArray& name) {
    const QByteArray path = QFile::encodeName(folder) + '/' + name;
    require(::unlink(path.constData()) == 0, "cannot remove raw-named file");
}

RawNamedFiles::RawNamedFiles(const QString& folder, const QList<QByteArray>& names,
                             qint64 firstSize, qint64 sizeStep)
    : m_folder(folder)
    , m_names(names) {
    for (qsizetype i = 0; i < names.size(); ++i)
        writeRawNamedFile(folder, names[i], firstSize + i * sizeStep);
}

RawNamedFiles::~RawNamedFiles() {
    for (const QByteArray& name : m_names)
        removeRawNamedFile(m_folder, name);
}

void makeFolderChain(const QString& root, int depth, const char* name) {
    int fd = ::open(QFile::encodeName(root).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    require(fd >= 0, "cannot open chain root");
    for (int level = 0; level < depth; ++level) {
        require(mkdirat(fd, name, 0755) == 0, "cannot create chain folder");
        const int next = openat(fd, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::close(fd);
        require(next >= 0, "cannot open chain folder");
        fd = next;
    }
    const int leaf = openat(fd, "leaf.txt", O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    require(leaf >= 0 && ::write(leaf, "x", 1) == 1, "cannot create chain leaf");
    ::close(leaf);
    ::close(fd);
}

void removeFolderChain(const QString& root, const char* name) {
    const int fd = ::open(QFile::encodeName(root).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    require(fd >= 0, "cannot open chain root");
    const QByteArray inner = QByteArray(name) + '/' + name;
    // Lift the second level up beside the first, remove the now empty first level, rename back:
    // the chain gets one level shorter with paths that never grow.
    while (renameat(fd, inner.constData(), fd, "chain-lifted") == 0) {
        require(unlinkat(fd, name, AT_REMOVEDIR) == 0, "cannot remove chain level");
        require(renameat(fd, "chain-lifted", fd, name) == 0, "cannot rename chain level");
    }
    const QByteArray leaf = QByteArray(name) + "/leaf.txt";
    unlinkat(fd, leaf.constData(), 0);
    unlinkat(fd, name, AT_REMOVEDIR);
    ::close(fd);
}

void generateTree(const QString& root, int itemCount, unsigned seed) {
    static const char* const extensions[] = {"txt",    "JPG", "js",  "json", "",
                                             "tar.gz", "log", "cpp", "Mp4",  "cache"};
    QRandomGenerator random(seed);
    QStringList folders{root};
    QStringList files;
    writeFile(root + "/Tool.app/Contents/binary", 5000);
    writeFile(root + "/.hidden/inside.txt", 10);
    writeFile(root + "/.dotfile", 10);
    QFile::link(root + "/Tool.app", root + "/link-to-package");
    for (int made = 0; made < itemCount; ++made) {
        const QString& parent = folders.at(random.bounded(folders.size()));
        if (random.bounded(8) == 0) {
            folders.append(parent + QStringLiteral("/folder %1").arg(made));
            QDir().mkpath(folders.back());
            continue;
        }
        const QString ext = QString::fromLatin1(extensions[random.bounded(10)]);
        const QString name = QStringLiteral("file-%1").arg(made) + (ext.isEmpty() ? "" : "." + ext);
        files.append(
            writeFile(parent + '/' + name, random.bounded(3) == 0 ? 0 : random.bounded(4000)));
        if (random.bounded(50) == 0)
            QFile::link(parent + '/' + name, parent + QStringLiteral("/link-%1").arg(made));
    }
    // Some files get more names in other folders, before or after the first in listing order.
    for (qsizetype file = 0; file < files.size(); file += 40) {
        for (qsizetype name = 1; name <= 1 + file % 3; ++name) {
            const QString& folder = folders.at((file * 7 + name) % folders.size());
            const QString linkPath = folder + QStringLiteral("/hard-%1-%2").arg(file).arg(name);
            require(::link(QFile::encodeName(files[file]).constData(),
                           QFile::encodeName(linkPath).constData()) == 0,
                    "cannot make a hard link");
        }
    }
}

namespace {

// Plain recursion is fine here: the reference only ever walks shallow test trees.
void walkInto(const QByteArray& folder, qint64 depth, std::vector<WalkedItem>& items,
              HardLinkCount& links) {
    DIR* dir = opendir(folder.constData());
    if (!dir)
        return;
    std::vector<QByteArray> names;
    while (const dirent* entry = readdir(dir))
        names.emplace_back(entry->d_name);
    closedir(dir);
    for (const QByteArray& name : names) {
        if (isHiddenName(name))
            continue;
        const QByteArray path = folder + (folder.endsWith('/') ? "" : "/") + name;
        WalkedItem item{path, EntryKind::unreadable, 0, ListedEntry::unknownModificationTime,
                        depth + 1};
        struct stat status;
        if (lstat(path.constData(), &status) == 0) {
            if (S_ISDIR(status.st_mode)) {
                item.kind = isPackageName(name) ? EntryKind::package : EntryKind::directory;
            } else if (S_ISLNK(status.st_mode)) {
                item.kind = EntryKind::symlink;
            } else {
                item.kind = S_ISREG(status.st_mode) ? EntryKind::file : EntryKind::special;
                item.size = links.sizeAt(status);
                item.modifiedMsecs =
                    qint64(status.st_mtim.tv_sec) * 1000 + status.st_mtim.tv_nsec / 1'000'000;
            }
        }
        items.push_back(item);
        if (item.kind == EntryKind::directory)
            walkInto(path, depth + 1, items, links);
    }
}

} // namespace

qint64 HardLinkCount::sizeAt(const struct stat& status) {
    if (!S_ISDIR(status.st_mode) && status.st_nlink > 1 &&
        !m_counted.insert({status.st_dev, status.st_ino}).second)
        return 0;
    return qint64(status.st_size);
}

std::vector<WalkedItem> referenceWalk(const QByteArray& root) {
    std::vector<WalkedItem> items;
    HardLinkCount links;
    walkInto(root, 0, items, links);
    return items;
}

int openDescriptorCount() {
    return int(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size());
}

QTemporaryDir makeFastTemporaryDir() {
    const QString memoryBacked = QStringLiteral("/dev/shm");
    const QString base = QFileInfo(memoryBacked).isWritable() ? memoryBacked : QDir::tempPath();
    return QTemporaryDir(base + QStringLiteral("/tessarine-test-XXXXXX"));
}

} // namespace tessarine::testing
