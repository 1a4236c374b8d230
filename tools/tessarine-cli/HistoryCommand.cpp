#include "Commands.h"

#include "Arguments.h"
#include "ExitCode.h"
#include "HistoryCompare.h"
#include "HistoryTable.h"
#include "StandardStreams.h"
#include "StoredScanId.h"
#include "Usage.h"

#include "model/Json.h"
#include "storage/HistoryCatalog.h"
#include "storage/PersistenceService.h"

#include <QFileInfo>
#include <QUuid>

namespace tessarine::cli {

namespace {

const QString jsonOption = QStringLiteral("--json");

// The stored results as one JSON array whose elements are the history files' own bytes. A file
// deleted since the listing is left out, as the listing would have left it out a moment later.
QByteArray jsonArray(PersistenceService& store, const QList<ScanSummary>& summaries) {
    QByteArrayList elements;
    for (const ScanSummary& summary : summaries) {
        auto loaded = store.loadResult(summary.id);
        if (const auto* result = std::get_if<AnalysisResult>(&loaded)) {
            elements.append(json::encode(*result).trimmed());
            continue;
        }
        const StorageError& error = std::get<StorageError>(loaded);
        const PersistenceError* own = error.persistenceError();
        if (!own || own->kind != PersistenceError::Kind::fileNotFound)
            printLoadFailure(QFileInfo(store.historyFilePath(summary.id)).fileName(),
                             error.errorDescription());
    }
    if (elements.isEmpty())
        return QByteArrayLiteral("[]\n");
    return "[\n" + elements.join(",\n") + "\n]\n";
}

int list(bool asJson) {
    PersistenceService& store = PersistenceService::shared();
    auto loaded = store.loadSummaries();
    if (const auto* error = std::get_if<StorageError>(&loaded)) {
        printError(error->errorDescription());
        return exitFailure;
    }
    const auto& results = std::get<QList<ScanSummary>>(loaded);
    QByteArray output;
    if (asJson)
        output = jsonArray(store, results);
    else if (results.isEmpty())
        output = QByteArrayLiteral("No stored scans.\n");
    else
        output = historyTable(results).toUtf8();
    return writeOutput(output) ? exitSuccess : exitFailure;
}

int remove(const QString& idText) {
    const std::optional<QUuid> id = storedScanId(idText);
    if (!id)
        return exitFailure;
    PersistenceService& store = PersistenceService::shared();
    // Deleting a missing file succeeds quietly in the store; here it is most likely a typo.
    if (store.directoryError() == std::nullopt && !QFileInfo::exists(store.historyFilePath(*id))) {
        printNoStoredScan(idText);
        return exitFailure;
    }
    if (const auto error = store.deleteResult(*id)) {
        printError(error->errorDescription());
        return exitFailure;
    }
    return exitSuccess;
}

} // namespace

int runHistory(const QStringList& arguments) {
    QString problem;
    const auto parsed = parseArguments(arguments, {jsonOption}, &problem);
    if (!parsed)
        return usageError(problem);
    if (parsed->positional.isEmpty())
        return list(parsed->has(jsonOption));
    if (parsed->positional.size() == 2 && parsed->positional.first() == u"delete" &&
        !parsed->has(jsonOption))
        return remove(parsed->positional.last());
    if (parsed->positional.size() == 3 && parsed->positional.first() == u"compare")
        return compareStoredScans(parsed->positional[1], parsed->positional[2],
                                  parsed->has(jsonOption));
    return usageError(
        QStringLiteral("history takes --json, delete ID, or compare OLD NEW [--json]"));
}

} // namespace tessarine::cli
