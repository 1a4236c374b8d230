#include "ReferenceWalk.h"

#include "model/PathBytes.h"
#include "scanner/ItemNameRules.h"
#include "scanner/ScanAggregator.h"

#include <QDir>

#include <algorithm>

#include <dirent.h>
#include <sys/stat.h>

namespace tessarine::testing {

namespace {

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

// Written independently of the scanner's byte-level rule: the text after the last dot of the
// decoded name, unless the name starts or ends with that dot.
QString extensionOf(const QString& name) {
    const qsizetype dot = name.lastIndexOf('.');
    return dot <= 0 || dot == name.size() - 1 ? QString() : name.sliced(dot + 1).toLower();
}

FileInfo recordOf(const WalkedItem& item) {
    FileInfo info;
    info.path = pathFromBytes(item.path);
    info.name = pathFromBytes(item.path.mid(item.path.lastIndexOf('/') + 1));
    info.size = item.size;
    info.fileExtension = extensionOf(info.name);
    info.category = categoryForExtension(info.fileExtension);
    info.depth = item.depth;
    info.modificationDate = item.modifiedMsecs == ListedEntry::unknownModificationTime
                                ? distantPast()
                                : QDateTime::fromMSecsSinceEpoch(item.modifiedMsecs, Qt::UTC);
    info.isDirectory = item.kind == EntryKind::directory || item.kind == EntryKind::package;
    return info;
}

} // namespace

std::vector<WalkedItem> referenceWalk(const QByteArray& root) {
    std::vector<WalkedItem> items;
    HardLinkCount links;
    walkInto(root, 0, items, links);
    return items;
}

AnalysisResult referenceResult(const QString& root) {
    ScanAggregator aggregator;
    for (const WalkedItem& item : referenceWalk(pathToBytes(root))) {
        if (item.kind != EntryKind::symlink && item.kind != EntryKind::unreadable)
            aggregator.add(recordOf(item));
    }
    AnalysisResult result = aggregator.finish();
    result.rootPath = QDir::cleanPath(root);
    result.rootName = QDir(root).dirName();
    return result;
}

std::map<QByteArray, std::pair<qint64, qint64>> referenceFolderSizes(const QString& root,
                                                                     qint64 cutoff) {
    const QByteArray rootBytes = QFile::encodeName(root);
    std::map<QByteArray, std::pair<qint64, qint64>> folders{{QByteArray(), {0, 0}}};
    for (const WalkedItem& item : referenceWalk(rootBytes)) {
        const QByteArray below = item.path.mid(rootBytes.size() + 1);
        if (item.kind == EntryKind::directory || item.kind == EntryKind::package)
            folders[below];
        if (item.kind != EntryKind::file && item.kind != EntryKind::special)
            continue;
        QByteArray folder = below;
        do {
            folder.truncate(std::max<qsizetype>(folder.lastIndexOf('/'), 0));
            auto& [size, files] = folders[folder];
            size += item.size;
            ++files;
        } while (!folder.isEmpty());
    }
    std::erase_if(folders, [&](const auto& folder) {
        return !folder.first.isEmpty() && folder.second.first < cutoff;
    });
    return folders;
}

} // namespace tessarine::testing
