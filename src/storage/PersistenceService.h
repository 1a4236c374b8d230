#pragma once

#include "model/Records.h"
#include "storage/HistoryCatalog.h"
#include "storage/PersistenceError.h"
#include "storage/RecentResults.h"
#include "storage/StorageError.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUuid>

#include <optional>
#include <variant>

namespace tessarine {

// The scan history on disk: one JSON file per finished scan, named after the result's id, in the
// "Tessarine" folder of the user's data directory. The history is listed by its summaries (see
// HistoryCatalog); a whole result is read only when asked for, and the last few are kept. Used
// from one thread only, so it needs no lock.
class PersistenceService {
public:
    // The one instance of the application, made on first use and never destroyed.
    static PersistenceService& shared();

    // Keeps the history in baseDirectory + "/Tessarine", creating it if needed. Never fails:
    // a folder that cannot be made is kept in directoryError, and every later operation reports it.
    explicit PersistenceService(const QString& baseDirectory);

    PersistenceService(const PersistenceService&) = delete;
    PersistenceService& operator=(const PersistenceService&) = delete;

    QString storagePath() const { return m_storagePath; }
    const std::optional<PersistenceError>& directoryError() const { return m_directoryError; }
    QString historyFilePath(const QUuid& id) const;

    // Writes the result's history file atomically, replacing an earlier save of the same id. A
    // history folder deleted since start is made again, so that the scan is not lost.
    std::optional<StorageError> save(const AnalysisResult& result);
    // The history as a first look finds it, through the summary index, which it brings up to
    // date. A file that cannot be read or decoded is skipped with one line on standard output
    // and left as it is.
    std::variant<HistoryCatalog, StorageError> openCatalog();
    // The stored scans' summaries, latest scanDate first, as openCatalog finds them.
    std::variant<QList<ScanSummary>, StorageError> loadSummaries();
    // The whole stored result with this id: fileNotFound once its file is gone, decodingFailed
    // when it no longer decodes.
    std::variant<AnalysisResult, StorageError> loadResult(const QUuid& id);
    // Removes the result's history file; one that is already gone is not an error.
    std::optional<StorageError> deleteResult(const AnalysisResult& result);
    std::optional<StorageError> deleteResult(const QUuid& id);

private:
    std::optional<StorageError> unusableDirectory() const;

    QString m_storagePath;
    std::optional<PersistenceError> m_directoryError;
    RecentResults m_recentResults;
};

} // namespace tessarine
