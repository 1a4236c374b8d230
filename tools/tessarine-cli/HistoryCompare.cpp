#include "HistoryCompare.h"

#include "ComparisonReport.h"
#include "ExitCode.h"
#include "StandardStreams.h"

#include "model/Json.h"
#include "storage/FolderSizesFile.h"
#include "storage/PersistenceService.h"
#include "storage/StoredFileRead.h"

#include <QFileInfo>
#include <QUuid>

namespace tessarine::cli {

namespace {

// One stored scan by the id the user typed; none, with the reason printed, when there is none.
std::optional<AnalysisResult> loadStoredScan(const PersistenceService& store,
                                             const QString& idText) {
    const QUuid id = QUuid::fromString(idText);
    if (id.isNull()) {
        printError(QStringLiteral("Not a scan id: ") + idText);
        return std::nullopt;
    }
    const QString path = store.historyFilePath(id);
    const auto bytes = readStoredFile(path);
    QString reason;
    if (const auto* content = std::get_if<QByteArray>(&bytes)) {
        if (auto result = json::decodeResult(*content, &reason))
            return result;
    } else if (!QFileInfo::exists(path)) {
        printError(QStringLiteral("No stored scan with id ") + idText);
        return std::nullopt;
    } else {
        reason = std::get<QString>(bytes);
    }
    printError(QStringLiteral("Failed to load ") + QFileInfo(path).fileName() +
               QStringLiteral(": ") + reason);
    return std::nullopt;
}

} // namespace

int compareStoredScans(const QString& firstId, const QString& secondId, bool asJson) {
    const PersistenceService& store = PersistenceService::shared();
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
