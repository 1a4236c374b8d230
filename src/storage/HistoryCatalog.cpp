#include "storage/HistoryCatalog.h"

#include "model/Json.h"
#include "storage/ConsoleLine.h"
#include "storage/HistoryListing.h"
#include "storage/StoredFileRead.h"
#include "storage/SummaryIndex.h"

#include <QDir>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <vector>

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
        entry.summary = json::decodeSummary(file.bytes, &entry.failure);
    }
    return entry;
}

// Reads the files on every core: a start without an index reads every stored scan.
std::vector<std::optional<CatalogEntry>> readEntries(const QDir& folder,
                                                     const std::vector<ListedHistoryFile>& files) {
    std::vector<std::optional<CatalogEntry>> entries(files.size());
    std::atomic<std::size_t> next = 0;
    const auto read = [&] {
        for (std::size_t i; (i = next++) < files.size();)
            entries[i] = readEntry(folder.filePath(files[i].name), files[i].stamp);
    };
    QThreadPool helpers;
    if (files.size() > 1)
        for (int helper = 1; helper < QThread::idealThreadCount(); ++helper)
            helpers.start(read);
    read();
    helpers.waitForDone();
    return entries;
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
    const auto& listed = std::get<QList<ListedHistoryFile>>(listing);
    std::vector<ListedHistoryFile> changed;
    for (const ListedHistoryFile& file : listed)
        if (!knowsAsItIs(file))
            changed.push_back(file);
    std::vector<std::optional<CatalogEntry>> read = readEntries(QDir(m_folder), changed);
    auto nextRead = read.begin();
    CatalogEntries latest;
    for (const ListedHistoryFile& file : listed) {
        const auto known = m_entries.constFind(file.name);
        std::optional<CatalogEntry> entry = knowsAsItIs(file) ? *known : std::move(*nextRead++);
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
    // Kept as it was when nothing changed, so that copies of the catalog stay shared and the
    // thread that takes the look in frees nothing.
    if (latest == m_entries)
        return false;
    m_entries = std::move(latest);
    return true;
}

bool HistoryCatalog::knowsAsItIs(const ListedHistoryFile& file) const {
    const auto known = m_entries.constFind(file.name);
    return known != m_entries.cend() && known->stamp == file.stamp;
}

std::optional<CatalogEntries> HistoryCatalog::indexUpdate() {
    if (m_entries == m_indexed)
        return std::nullopt;
    m_indexed = m_entries;
    return m_indexed;
}

QList<ScanSummary> HistoryCatalog::summaries() const {
    // Sorted by date as a number: ten thousand dates compared afresh at every step were most of
    // a look's time.
    struct Listed {
        qint64 date;
        qint64 saved;
        const QString* name;
        const ScanSummary* summary;
    };
    std::vector<Listed> listed;
    listed.reserve(std::size_t(m_entries.size()));
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry)
        if (entry->summary)
            listed.push_back({entry->summary->scanDate.toMSecsSinceEpoch(), entry->stamp.modifiedNs,
                              &entry.key(), &*entry->summary});
    std::sort(listed.begin(), listed.end(), [](const Listed& a, const Listed& b) {
        if (a.date != b.date)
            return a.date > b.date;
        return a.saved != b.saved ? a.saved > b.saved : *a.name < *b.name;
    });
    QList<ScanSummary> summaries;
    summaries.reserve(qsizetype(listed.size()));
    for (const Listed& entry : listed)
        summaries.append(*entry.summary);
    return summaries;
}

} // namespace tessarine
