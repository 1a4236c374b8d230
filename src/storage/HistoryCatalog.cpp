#include "storage/HistoryCatalog.h"

#include "model/Json.h"
#include "storage/ConsoleLine.h"
#include "storage/HistoryListing.h"
#include "storage/StoredFileRead.h"
#include "storage/SummaryIndex.h"

#include <QDir>

#include <algorithm>

namespace tessarine {

namespace {

// Nothing when the file was deleted after it was listed: it is gone, not broken.
std::optional<CatalogEntry> readEntry(const QString& path, const FileStamp& listed) {
    CatalogEntry entry;
    entry.stamp = listed;
    auto read = readStoredFile(path);
    if (const auto* failure = std::get_if<StoredFileFailure>(&read)) {
        if (failure->vanished)
            return std::nullopt;
        entry.failure = failure->reason;
    } else {
        const auto& file = std::get<StoredFile>(read);
        entry.stamp = file.stamp;
        if (auto result = json::decodeResult(file.bytes, &entry.failure))
            entry.summary = ScanSummary::of(*result);
    }
    return entry;
}

} // namespace

void printLoadFailure(const QString& fileName, const QString& reason) {
    printConsoleLine(QStringLiteral("Failed to load ") + fileName + QStringLiteral(": ") + reason);
}

HistoryCatalog::HistoryCatalog(QString folder)
    : m_folder(std::move(folder)) {}

void HistoryCatalog::takeIndex() {
    m_indexed = readSummaryIndex(m_folder);
    m_entries = m_indexed;
}

std::variant<bool, StorageError> HistoryCatalog::look(Reporting reporting) {
    auto listing = listHistoryFiles(m_folder);
    if (auto* error = std::get_if<StorageError>(&listing))
        return std::move(*error);
    const QDir folder(m_folder);
    CatalogEntries latest;
    for (const ListedHistoryFile& file : std::get<QList<ListedHistoryFile>>(listing)) {
        const auto known = m_entries.constFind(file.name);
        const bool unchanged = known != m_entries.cend() && known->stamp == file.stamp;
        std::optional<CatalogEntry> entry =
            unchanged ? *known : readEntry(folder.filePath(file.name), file.stamp);
        if (!entry)
            continue;
        if (!entry->summary) {
            const bool reported = known != m_entries.cend() && known->stamp == entry->stamp &&
                                  known->failure == entry->failure;
            if (reporting == Reporting::everyBrokenFile || !reported)
                printLoadFailure(file.name, entry->failure);
        }
        latest.insert(file.name, std::move(*entry));
    }
    const bool changed = latest != m_entries;
    m_entries = std::move(latest);
    return changed;
}

void HistoryCatalog::updateIndex() {
    if (m_entries == m_indexed)
        return;
    // A folder that cannot take the index still works, only without the head start.
    writeSummaryIndex(m_folder, m_entries);
    m_indexed = m_entries;
}

QList<ScanSummary> HistoryCatalog::summaries() const {
    std::vector<std::pair<const QString*, const ScanSummary*>> listed;
    listed.reserve(std::size_t(m_entries.size()));
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry)
        if (entry->summary)
            listed.emplace_back(&entry.key(), &*entry->summary);
    std::sort(listed.begin(), listed.end(), [](const auto& a, const auto& b) {
        if (a.second->scanDate != b.second->scanDate)
            return a.second->scanDate > b.second->scanDate;
        return *a.first < *b.first;
    });
    QList<ScanSummary> summaries;
    summaries.reserve(qsizetype(listed.size()));
    for (const auto& [name, summary] : listed)
        summaries.append(*summary);
    return summaries;
}

} // namespace tessarine
