#include "FileTrees.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

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

QByteArray rawPath(const QString& folder, const QByteArray& name) {
    return QFile::encodeName(folder) + '/' + name;
}

int openFolder(const QString& path) {
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    require(fd >= 0, "cannot open test folder");
    return fd;
}

} // namespace

QString writeFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    require(file.open(QIODevice::WriteOnly), "cannot create test file");
    require(file.write(bytes) == bytes.size(), "cannot fill test file");
    return path;
}

QString writeFile(const QString& path, qint64 size) {
    return writeFile(path, QByteArray(size, 'x'));
}

void writeFiles(const QString& root, std::initializer_list<std::pair<const char*, qint64>> files) {
    for (const auto& [path, size] : files)
        writeFile(root + '/' + QString::fromUtf8(path), size);
}

void writeFolders(const QString& root, int folderCount, int filesPerFolder) {
    for (int folder = 0; folder < folderCount; ++folder) {
        for (int file = 0; file < filesPerFolder; ++file)
            writeFile(QStringLiteral("%1/folder%2/file%3").arg(root).arg(folder).arg(file), 1);
    }
}

QByteArray readBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QMap<QString, QByteArray> folderSnapshot(const QString& root) {
    QMap<QString, QByteArray> entries;
    QDirIterator it(root, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        entries.insert(path, it.fileInfo().isFile() ? readBytes(path) : QByteArray("<dir>"));
    }
    return entries;
}

RawNamedFiles::RawNamedFiles(const QString& folder, const QList<QByteArray>& names,
                             qint64 firstSize, qint64 sizeStep)
    : m_folder(folder)
    , m_names(names) {
    for (qsizetype i = 0; i < names.size(); ++i) {
        const int fd = ::open(rawPath(folder, names[i]).constData(),
                              O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        require(fd >= 0, "cannot create raw-named file");
        const QByteArray content(firstSize + i * sizeStep, 'x');
        const bool written =
            ::write(fd, content.constData(), std::size_t(content.size())) == content.size();
        ::close(fd);
        require(written, "cannot fill raw-named file");
    }
}

RawNamedFiles::~RawNamedFiles() {
    for (const QByteArray& name : m_names)
        ::unlink(rawPath(m_folder, name).constData());
}

FolderChain::FolderChain(const QString& root, int depth)
    : m_root(root) {
    int fd = openFolder(root);
    for (int level = 0; level < depth; ++level) {
        require(mkdirat(fd, "d", 0755) == 0, "cannot create chain folder");
        const int next = openat(fd, "d", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::close(fd);
        require(next >= 0, "cannot open chain folder");
        fd = next;
    }
    const int leaf = openat(fd, "leaf.txt", O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    const bool written = leaf >= 0 && ::write(leaf, "x", 1) == 1;
    ::close(leaf);
    ::close(fd);
    require(written, "cannot create chain leaf");
}

FolderChain::~FolderChain() {
    const int fd = openFolder(m_root);
    // Lift the second level up beside the first, remove the now empty first level, rename back:
    // the chain gets one level shorter with paths that never grow.
    while (renameat(fd, "d/d", fd, "chain-lifted") == 0) {
        unlinkat(fd, "d", AT_REMOVEDIR);
        renameat(fd, "chain-lifted", fd, "d");
    }
    unlinkat(fd, "d/leaf.txt", 0);
    unlinkat(fd, "d", AT_REMOVEDIR);
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
    QFile::link(root + "/nowhere", root + "/dangling");
    require(mkfifo(QFile::encodeName(root + "/pipe").constData(), 0644) == 0, "cannot make pipe");
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
        if (made % 200 == 0)
            QFile::link(parent + "/gone", parent + QStringLiteral("/dangling-%1").arg(made));
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

qint64 HardLinkCount::sizeAt(const struct stat& status) {
    if (!S_ISDIR(status.st_mode) && status.st_nlink > 1 &&
        !m_counted.insert({status.st_dev, status.st_ino}).second)
        return 0;
    return qint64(status.st_size);
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
