#include "Commands.h"

#include "Arguments.h"
#include "ExitCode.h"
#include "StandardStreams.h"
#include "Usage.h"

#include "import/ImportedFolderSizes.h"
#include "import/ScanImport.h"
#include "model/Json.h"
#include "storage/FolderSizesFile.h"
#include "storage/PersistenceService.h"

namespace tessarine::cli {

namespace {

const QString saveOption = QStringLiteral("--save");

} // namespace

int runImport(const QStringList& arguments) {
    QString problem;
    const auto parsed = parseArguments(arguments, {saveOption}, &problem);
    if (!parsed)
        return usageError(problem);
    if (parsed->positional.size() != 1)
        return usageError(QStringLiteral("import needs exactly one FILE (- for standard input)"));

    const ImportOutcome outcome = importScanFile(parsed->positional.first());
    if (const auto* error = std::get_if<ImportError>(&outcome)) {
        printError(error->errorDescription());
        return exitFailure;
    }
    const auto& result = std::get<AnalysisResult>(outcome);
    if (parsed->has(saveOption)) {
        PersistenceService& store = PersistenceService::shared();
        auto error = store.save(result);
        if (!error && result.folderTree)
            error = saveFolderSizes(store.storagePath(), result.id,
                                    folderSizesOfTree(*result.folderTree));
        if (error) {
            printError(error->errorDescription());
            return exitFailure;
        }
    }
    // The text of an imported tree is the size of the export: passed on piece by piece, it never
    // lies in memory whole beside the tree.
    return json::encode(result, [](QByteArrayView piece) { return writeOutput(piece); })
               ? exitSuccess
               : exitFailure;
}

} // namespace tessarine::cli
