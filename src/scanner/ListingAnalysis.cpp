#include "scanner/ListingAnalysis.h"

#include "scanner/FolderSizeTally.h"
#include "scanner/ItemNameRules.h"
#include "scanner/ListingCursor.h"

#include "model/PathBytes.h"

namespace tessarine {

namespace {

QDateTime modificationDate(const ListedEntry& entry) {
    return entry.modifiedMsecs() == ListedEntry::unknownModificationTime
               ? distantPast()
               : QDateTime::fromMSecsSinceEpoch(entry.modifiedMsecs(), Qt::UTC);
}

} // namespace

ListingAnalysis::ListingAnalysis(ScanAggregator& aggregator, const std::atomic<bool>& cancelled,
                                 qint64 interval, IntervalCallback onInterval)
    : m_aggregator(aggregator)
    , m_cancelled(cancelled)
    , m_interval(interval)
    , m_onInterval(std::move(onInterval)) {}

bool ListingAnalysis::fold(const DirectoryListing& listing) {
    qint64 processed = 0;
    for (ListingCursor cursor(listing); cursor.next();) {
        if (m_cancelled.load(std::memory_order_relaxed))
            return false;
        if (!foldItem(cursor.entry(), cursor.depth(), cursor.folderPath()))
            continue;
        if (++processed % m_interval == 0 && m_onInterval)
            m_onInterval(pathFromBytes(cursor.entryPath()));
    }
    return true;
}

bool ListingAnalysis::foldItem(const ListedEntry& entry, qint64 depth,
                               const QByteArray& folderPath) {
    if (entry.kind() == EntryKind::symlink || entry.kind() == EntryKind::unreadable)
        return false;
    if (entry.isFolder()) {
        m_aggregator.addFolder(depth);
        if (m_folderSizes)
            m_folderSizes->addFolder(depth, entry.name());
    } else {
        foldFile(entry, depth, folderPath);
    }
    return true;
}

void ListingAnalysis::foldFile(const ListedEntry& entry, qint64 depth,
                               const QByteArray& folderPath) {
    ExtensionTally& ext = tallyFor(pathExtension(entry.name()));
    if (m_folderSizes)
        m_folderSizes->addFile(depth, entry.size());
    m_aggregator.addFile(entry.size(), depth, ext, ext.category, [&] {
        QByteArray path = folderPath;
        appendPathComponent(path, entry.name());
        FileInfo record;
        record.path = pathFromBytes(path);
        record.name = pathFromBytes(entry.name());
        record.size = entry.size();
        record.fileExtension = ext.ext;
        record.category = ext.category;
        record.depth = depth;
        record.modificationDate = modificationDate(entry);
        return record;
    });
}

// FNV-1a: extensions are a few bytes, where Qt's seeded byte hash costs more than the whole rest
// of a file's analysis (about 65 ms of the benchmark tree's scan).
std::size_t ListingAnalysis::ExtensionHash::operator()(std::string_view bytes) const noexcept {
    std::size_t hash = 14695981039346656037ull;
    for (const char byte : bytes)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211ull;
    return hash;
}

ExtensionTally& ListingAnalysis::tallyFor(QByteArrayView rawExtension) {
    const std::string_view bytes(rawExtension.data(), std::size_t(rawExtension.size()));
    if (const auto known = m_tallies.find(bytes); known != m_tallies.end())
        return *known->second;
    const QString ext = pathFromBytes(rawExtension).toLower();
    ExtensionTally& made = m_aggregator.tally(ext, categoryForExtension(ext));
    m_tallies.emplace(std::string(bytes), &made);
    return made;
}

} // namespace tessarine
