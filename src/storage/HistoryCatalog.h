#pragma once

#include "model/ScanSummary.h"
#include "storage/FileStamp.h"
#include "storage/HistoryListing.h"
#include "storage/StorageError.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>
#include <variant>

namespace tessarine {

// What one history file held when it was last read.
struct CatalogEntry {
    FileStamp stamp;
    // Absent when the file could not be read or decoded; `failure` says why.
    std::optional<ScanSummary> summary;
    QString failure;

    bool operator==(const CatalogEntry&) const = default;
};

// The line for a history file that is skipped: "Failed to load <name>: <reason>".
void printLoadFailure(const QString& fileName, const QString& reason);

// History files by name.
using CatalogEntries = QHash<QString, CatalogEntry>;

// The summaries of the stored scans, kept in step with the history folder: each look lists the
// folder and reads only the files that are new or changed since the last one. The history files
// stay the one source of truth; the summary index beside them (SummaryIndex) only spares a start
// from reading them all. A plain value, so that a look can run on another thread on a copy.
class HistoryCatalog {
public:
    enum class Reporting {
        // A first look, as at start: every broken file gets its "Failed to load " line.
        everyBrokenFile,
        // A later look: only a file found broken anew, not one already reported.
        newlyBrokenFiles,
    };

    HistoryCatalog() = default;
    explicit HistoryCatalog(QString folder);

    // Takes the summaries of the index as if their files had been read; whatever the index says
    // is checked against the folder at the next look.
    void takeIndex();
    // Lists the folder and reads what changed. Says whether the summaries or failures changed.
    std::variant<bool, StorageError> look(Reporting reporting);
    // What the index is to hold from now on, when it no longer holds what this catalog knows;
    // the catalog counts it as written (by writeSummaryIndex), so that the write, which takes a
    // moment with ten thousand scans, can wait until the summaries are shown.
    std::optional<CatalogEntries> indexUpdate();

    // Newest first. Dates are stored to the second: scans of the same second come latest saved
    // first, as the application lists a scan it has just saved, then by file name.
    QList<ScanSummary> summaries() const;
    const CatalogEntries& entries() const { return m_entries; }

private:
    bool knowsAsItIs(const ListedHistoryFile& file) const;

    QString m_folder;
    CatalogEntries m_entries;
    // What the index on disk holds, as far as this catalog knows.
    CatalogEntries m_indexed;
};

} // namespace tessarine
