#include "Commands.h"

#include "Arguments.h"
#include "CancellableRun.h"
#include "ScanOptionArguments.h"

#include "model/Json.h"
#include "scanner/FileSystemScanner.h"
#include "storage/CsvExport.h"
#include "storage/FolderSizesFile.h"
#include "storage/PersistenceService.h"

#include <memory>

namespace tessarine::cli {

namespace {

const QString saveOption = QStringLiteral("--save");
const QString csvOption = QStringLiteral("--csv");

ScanOutcome scan(const std::shared_ptr<FileSystemScanner>& scanner, const QString& folder) {
    const CancelToken task;
    return runCancellable<ScanOutcome, ScanProgress>({
        [scanner, folder, task] { return scanner->scan(folder, task); },
        [task] { task.cancel(); },
        [scanner] { return scanner->currentProgress(); },
        ScanError{ScanError::Kind::cancelled, {}},
    });
}

std::variant<QByteArray, StorageError> render(const AnalysisResult& result, bool asCsv) {
    if (asCsv)
        return csv::exportLargestFiles(result);
    return json::encode(result);
}

} // namespace

int runScan(const QStringList& arguments) {
    const auto parsing = parseFolderCommand(
        arguments, QStringList{saveOption, csvOption} + scanOptionNames(), QStringLiteral("scan"));
    if (const int* usageStatus = std::get_if<int>(&parsing))
        return *usageStatus;
    const Arguments& parsed = std::get<Arguments>(parsing);

    const auto scanner = std::make_shared<FileSystemScanner>(scanOptionsOf(parsed));
    // Folder sizes go only into the history: a printed result has no place for them.
    scanner->setKeepsFolderSizes(parsed.has(saveOption));
    const ScanOutcome outcome = scan(scanner, parsed.positional.first());
    if (const auto* error = std::get_if<ScanError>(&outcome))
        return reportFailure(*error);
    const auto& result = std::get<AnalysisResult>(outcome);
    const auto output = render(result, parsed.has(csvOption));
    if (const auto* error = std::get_if<StorageError>(&output)) {
        printError(error->errorDescription());
        return exitFailure;
    }
    // Saved before anything is printed: a scan that could not be stored fails as a whole.
    if (parsed.has(saveOption)) {
        PersistenceService& store = PersistenceService::shared();
        auto error = store.save(result);
        if (!error)
            error = saveFolderSizes(store.storagePath(), result.id, *scanner->folderSizes());
        if (error) {
            printError(error->errorDescription());
            return exitFailure;
        }
    }
    return writeOutput(std::get<QByteArray>(output)) ? exitSuccess : exitFailure;
}

} // namespace tessarine::cli
