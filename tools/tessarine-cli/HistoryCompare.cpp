#include "HistoryCompare.h"

#include "ComparisonReport.h"
#include "ExitCode.h"
#include "StandardStreams.h"
#include "StoredScanId.h"

#include "storage/FolderSizesFile.h"
#include "storage/PersistenceService.h"

#include <QFileInfo>

namespace tessarine::cli {

namespace {

// One stored scan by the id the user typed; none, with the reason printed, when there is none.
std::optional<AnalysisResult> loadStoredScan(PersistenceService& store, const QString& idText) {
    const std::optional<QUuid> id = storedScanId(idText);
    if (!id)
        return std::nullopt;
    auto loaded = store.loadResult(*id);
    if (auto* result = std::get_if<AnalysisResult>(&loaded))
        return std::move(*result);
    const StorageError& error = std::get<StorageError>(loaded);
    const PersistenceError* own = error.persistenceError();
    if (own && own->kind == PersistenceError::Kind::fileNotFound)
        printNoStoredScan(idText);
    else
        printError(QStringLiteral("Failed to load ") +
                   QFileInfo(store.historyFilePath(*id)).fileName() + QStringLiteral(": ") +
                   error.errorDescription());
    return std::nullopt;
}

} // namespace

int compareStoredScans(const QString& firstId, const QString& secondId, bool asJson) {
    PersistenceService& store = PersistenceService::shared();
    if (const auto& error = store.directoryError()) {
        printError(error->errorDescription());
        return exitFailure;
    }
    std::optional<AnalysisResult> first = loadStoredScan(store, firstId);
    std::optional<AnalysisResult> second = first ? loadStoredScan(store, secondId) : std::nullopt;
    if (!second)
        return exitFailure;
    if (second->scanDate < first->scanDate)
        std::swap(first, second);
    StoredComparison comparison{std::move(*first), std::move(*second), {}};
    const QString folder = store.storagePath();
    comparison.folders =
        compareFolders(comparison.before.rootPath, loadFolderSizes(folder, comparison.before.id),
                       comparison.after.rootPath, loadFolderSizes(folder, comparison.after.id));
    const QByteArray output =
        asJson ? comparisonJson(comparison) : comparisonText(comparison).toUtf8();
    return writeOutput(output) ? exitSuccess : exitFailure;
}

} // namespace tessarine::cli
