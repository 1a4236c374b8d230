#include "Commands.h"

#include "Arguments.h"
#include "CancellableRun.h"

#include "model/Json.h"
#include "scanner/FileSystemScanner.h"
#include "storage/CsvExport.h"
#include "storage/PersistenceService.h"

namespace tessarine::cli {

namespace {

const QString saveOption = QStringLiteral("--save");
const QString csvOption = QStringLiteral("--csv");

ScanOutcome scan(const QString& folder) {
    const auto scanner = std::make_shared<FileSystemScanner>();
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
    const auto parsing =
        parseFolderCommand(arguments, {saveOption, csvOption}, QStringLiteral("scan"));
    if (const int* usageStatus = std::get_if<int>(&parsing))
        return *usageStatus;
    const Arguments& parsed = std::get<Arguments>(parsing);

    const ScanOutcome outcome = scan(parsed.positional.first());
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
        if (const auto error = PersistenceService::shared().save(result)) {
            printError(error->errorDescription());
            return exitFailure;
        }
    }
    return writeOutput(std::get<QByteArray>(output)) ? exitSuccess : exitFailure;
}

} // namespace tessarine::cli
