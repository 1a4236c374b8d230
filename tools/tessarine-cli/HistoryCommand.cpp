#include "Commands.h"

#include "Arguments.h"
#include "ExitCode.h"
#include "HistoryCompare.h"
#include "HistoryTable.h"
#include "StandardStreams.h"
#include "Usage.h"

#include "model/Json.h"
#include "storage/PersistenceService.h"

#include <QFileInfo>
#include <QUuid>

namespace tessarine::cli {

namespace {

const QString jsonOption = QStringLiteral("--json");

// The stored results as one JSON array whose elements are the history files' own bytes.
QByteArray jsonArray(const QList<AnalysisResult>& results) {
    if (results.isEmpty())
        return QByteArrayLiteral("[]\n");
    QByteArrayList elements;
    for (const AnalysisResult& result : results)
        elements.append(json::encode(result).trimmed());
    return "[\n" + elements.join(",\n") + "\n]\n";
}

int list(bool asJson) {
    auto loaded = PersistenceService::shared().loadAll();
    if (const auto* error = std::get_if<StorageError>(&loaded)) {
        printError(error->errorDescription());
        return exitFailure;
    }
    const auto& results = std::get<QList<AnalysisResult>>(loaded);
    QByteArray output;
    if (asJson)
        output = jsonArray(results);
    else if (results.isEmpty())
        output = QByteArrayLiteral("No stored scans.\n");
    else
        output = historyTable(results).toUtf8();
    return writeOutput(output) ? exitSuccess : exitFailure;
}

int remove(const QString& idText) {
    const QUuid id = QUuid::fromString(idText);
    if (id.isNull()) {
        printError(QStringLiteral("Not a scan id: ") + idText);
        return exitFailure;
    }
    PersistenceService& store = PersistenceService::shared();
    // Deleting a missing file succeeds quietly in the store; here it is most likely a typo.
    if (store.directoryError() == std::nullopt && !QFileInfo::exists(store.historyFilePath(id))) {
        printError(QStringLiteral("No stored scan with id ") + idText);
        return exitFailure;
    }
    if (const auto error = store.deleteResult(id)) {
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
