#pragma once

#include "model/Records.h"
#include "storage/PersistenceError.h"
#include "storage/StorageError.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUuid>

#include <optional>
#include <variant>

namespace tessarine {

// The scan history on disk: one JSON file per finished scan, named after the result's id, in the
// "Tessarine" folder of the user's data directory. It holds no cache; every loadAll reads the
// folder afresh. Used from the user-interface thread only, so it needs no lock.
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

    // Writes the result's history file atomically, replacing an earlier save of the same id.
    std::optional<StorageError> save(const AnalysisResult& result);
    // Every stored result, latest scanDate first. A file that cannot be read or decoded is
    // skipped with one line on standard output and left as it is.
    std::variant<QList<AnalysisResult>, StorageError> loadAll();
    // Removes the result's history file; one that is already gone is not an error.
    std::optional<StorageError> deleteResult(const AnalysisResult& result);
    std::optional<StorageError> deleteResult(const QUuid& id);

private:
    std::optional<StorageError> unusableDirectory() const;

    QString m_storagePath;
    std::optional<PersistenceError> m_directoryError;
};

} // namespace tessarine
