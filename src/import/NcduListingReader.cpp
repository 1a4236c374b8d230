#include "import/NcduListingReader.h"

#include "model/SaturatingSum.h"
#include "scanner/ItemNameRules.h"

#include <algorithm>
#include <sys/stat.h>

namespace tessarine {

namespace {

constexpr qint64 supportedMajorVersion = 1;

QByteArrayView viewOf(const std::string& bytes) {
    return {bytes.data(), qsizetype(bytes.size())};
}

// Seconds since the epoch held to the dates a result can store (years 1 to 9999): a file from
// another machine may claim any time at all.
qint64 writableSeconds(qint64 seconds) {
    constexpr qint64 firstSecond = -62135596800;  // 0001-01-01T00:00:00Z
    constexpr qint64 latestSecond = 253402300799; // 9999-12-31T23:59:59Z
    return std::clamp(seconds, firstSecond, latestSecond);
}

qint64 modifiedMsecs(const std::optional<qint64>& seconds) {
    return seconds ? writableSeconds(*seconds) * 1000 : ListedEntry::unknownModificationTime;
}

} // namespace

DirectoryListing NcduListingReader::read() {
    readHeader();
    m_reader.expect(',');
    m_reader.expect('[');
    Info rootInfo;
    readInfo(rootInfo);
    if (rootInfo.name.empty() || rootInfo.name.find('\0') != std::string::npos)
        m_reader.fail(QStringLiteral("the scanned folder has no usable name"));
    readFolders(rootInfo);
    m_reader.expect(']');
    m_reader.expectEnd();

    DirectoryListing listing;
    listing.m_rootPath = QByteArray(rootInfo.name.data(), qsizetype(rootInfo.name.size()));
    listing.m_root = m_levels.front().folder;
    listing.m_itemCount = m_items;
    listing.m_folderCount = m_folders;
    listing.m_arenas.push_back(std::move(m_arena));
    return listing;
}

void NcduListingReader::readHeader() {
    m_reader.expect('[');
    const qint64 major = m_reader.readInteger("the major version");
    if (major != supportedMajorVersion)
        m_reader.fail(
            QStringLiteral("version %1 of the ncdu format is not supported (only 1)").arg(major));
    m_reader.expect(',');
    const qint64 minor = m_reader.readInteger("the minor version");
    if (minor < 0)
        m_reader.fail(QStringLiteral("the minor version is negative"));
    m_reader.expect(',');
    m_reader.expect('{');
    std::string key;
    std::string text;
    QString name;
    QString version;
    if (!m_reader.consume('}')) {
        do {
            m_reader.readString(key);
            m_reader.expect(':');
            if ((key == "progname" || key == "progver") && m_reader.peek() == '"') {
                m_reader.readString(text);
                (key == "progname" ? name : version) = QString::fromUtf8(viewOf(text));
            } else if (key == "timestamp" && m_reader.peek() != '"') {
                m_facts.exportDate = QDateTime::fromSecsSinceEpoch(
                    writableSeconds(m_reader.readInteger("the timestamp")), Qt::UTC);
            } else {
                m_reader.skipValue();
            }
        } while (m_reader.consume(','));
        m_reader.expect('}');
    }
    m_facts.program = (name.isEmpty() ? QStringLiteral("ncdu") : name) +
                      (version.isEmpty() ? QString() : u' ' + version);
}

void NcduListingReader::readInfo(Info& info) {
    info = Info();
    bool named = false;
    std::string key;
    m_reader.expect('{');
    if (!m_reader.consume('}')) {
        do {
            m_reader.readString(key);
            m_reader.expect(':');
            if (m_reader.consumeNull())
                continue;
            if (key == "name") {
                m_reader.readString(info.name);
                named = true;
            } else if (key == "asize") {
                info.asize = std::max<qint64>(0, m_reader.readInteger("a size"));
            } else if (key == "dev") {
                info.device = m_reader.readInteger("a device number");
            } else if (key == "ino") {
                info.inode = m_reader.readInteger("an inode number");
            } else if (key == "mode") {
                info.mode = m_reader.readInteger("a mode");
            } else if (key == "mtime") {
                info.mtime = m_reader.readInteger("a modification time");
            } else if (key == "hlnkc") {
                info.hardLinked |= m_reader.readBoolean("hlnkc");
            } else if (key == "nlink") {
                info.hardLinked |= m_reader.readInteger("a link count") > 1;
            } else if (key == "read_error") {
                info.readError = m_reader.readBoolean("read_error");
            } else if (key == "notreg") {
                info.notRegular = m_reader.readBoolean("notreg");
            } else if (key == "excluded") {
                // A pattern name in 1.x, true in some writers: either way the item was not read.
                m_reader.skipValue();
                info.excluded = true;
            } else {
                m_reader.skipValue();
            }
        } while (m_reader.consume(','));
        m_reader.expect('}');
    }
    if (!named)
        m_reader.fail(QStringLiteral("an item has no name"));
    if (info.mtime)
        m_facts.hasModificationTimes = true;
    if (info.mode)
        m_facts.hasFileTypes = true;
}

// A name is one path component: anything else would lead outside the folder it is listed in.
void NcduListingReader::checkName(const Info& info) const {
    const std::string& name = info.name;
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos ||
        name.find('\0') != std::string::npos)
        m_reader.fail(QStringLiteral("an item's name is not a single path component"));
}

void NcduListingReader::readFolders(const Info& rootInfo) {
    m_path = QByteArray(rootInfo.name.data(), qsizetype(rootInfo.name.size()));
    m_depth = 0;
    enterFolder(m_arena.make<ListedDirectory>(nullptr, QByteArrayView()),
                rootInfo.device.value_or(0));
    Info info;
    while (m_depth > 0) {
        if (!m_reader.consume(',')) {
            m_reader.expect(']');
            closeFolder();
            continue;
        }
        if (m_reader.consume('[')) {
            readInfo(info);
            checkName(info);
            if (!openFolder(info))
                skipRestOfFolder();
        } else {
            readInfo(info);
            checkName(info);
            addFile(m_levels[m_depth - 1], info);
        }
    }
    const ListedDirectory& root = *m_levels.front().folder;
    if (rootInfo.readError && root.entries().empty() && root.summedCount() == 0)
        m_levels.front().folder->markUnreadable();
}

void NcduListingReader::addFile(Level& level, const Info& info) {
    if (info.excluded || isHiddenName(viewOf(info.name)))
        return;
    ++m_items;
    ++level.position;
    if (info.readError) {
        // What could not be read keeps its entry, as a walk keeps it; the analysis passes over it.
        // Its size, as a package's below, is the export's: the folder tree never asks this disk.
        level.entries.push_back(ListedEntry::unsized(m_arena.copyName(viewOf(info.name)),
                                                     EntryKind::unreadable, info.asize));
        return;
    }
    const ListedEntry entry = sizedEntry(level, info);
    m_analysis.foldItem(entry, qint64(m_depth), m_path);
    ++level.summedCount;
    addSaturating(level.summedSize, *entry.ownSize());
}

ListedEntry NcduListingReader::sizedEntry(const Level& level, const Info& info) {
    // Without extended mode an export does not tell a link from a device or a pipe; links are by
    // far the most common, so that is what such an item is taken for.
    const QByteArrayView name = viewOf(info.name);
    if (info.notRegular && (!info.mode || S_ISLNK(mode_t(*info.mode))))
        return ListedEntry::link(name, info.asize);
    ListedEntry entry =
        ListedEntry::sized(name, info.notRegular ? EntryKind::special : EntryKind::file, info.asize,
                           modifiedMsecs(info.mtime));
    if (info.hardLinked && info.inode &&
        !m_countedFiles.insert({dev_t(info.device.value_or(level.device)), ino_t(*info.inode)})
             .second)
        entry.dropRepeatedLinkSize();
    return entry;
}

bool NcduListingReader::openFolder(const Info& info) {
    Level& parent = m_levels[m_depth - 1];
    if (info.excluded || isHiddenName(viewOf(info.name)))
        return false;
    const QByteArrayView name = m_arena.copyName(viewOf(info.name));
    ++m_items;
    ++m_folders;
    const quint32 position = parent.position++;
    if (isPackageName(name)) {
        parent.entries.push_back(ListedEntry::unsized(name, EntryKind::package, info.asize));
        m_analysis.foldItem(parent.entries.back(), qint64(m_depth), m_path);
        return false;
    }
    auto* folder = m_arena.make<ListedDirectory>(parent.folder, name, position);
    parent.entries.push_back(ListedEntry::folder(name, folder));
    m_analysis.foldItem(parent.entries.back(), qint64(m_depth), m_path);
    enterFolder(folder, info.device.value_or(parent.device)); // invalidates `parent`
    appendPathComponent(m_path, name);
    if (info.readError)
        folder->markUnreadable();
    return true;
}

void NcduListingReader::enterFolder(ListedDirectory* folder, qint64 device) {
    if (m_levels.size() == m_depth)
        m_levels.emplace_back();
    Level& level = m_levels[m_depth++];
    level.folder = folder;
    level.device = device;
    level.parentPathLength = m_path.size();
    level.position = 0;
    level.summedCount = 0;
    level.summedSize = 0;
    level.entries.clear();
}

void NcduListingReader::closeFolder() {
    Level& level = m_levels[--m_depth];
    m_path.truncate(level.parentPathLength);
    const bool unreadable = level.folder->state() == ListedDirectory::State::unreadable;
    if (unreadable && level.entries.empty() && level.summedCount == 0)
        return;
    level.folder->setEntries(m_arena.copyArray(std::span<const ListedEntry>(level.entries)),
                             level.summedCount, level.summedSize);
}

void NcduListingReader::skipRestOfFolder() {
    while (m_reader.consume(','))
        m_reader.skipValue();
    m_reader.expect(']');
}

} // namespace tessarine
