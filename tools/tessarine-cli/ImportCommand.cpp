#include "Commands.h"

#include "Arguments.h"
#include "ExitCode.h"
#include "StandardStreams.h"
#include "Usage.h"

#include "import/ImportInput.h"
#include "import/ScanImport.h"
#include "model/Json.h"
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

    auto opened = ImportInput::open(parsed->positional.first());
    if (const auto* error = std::get_if<ImportError>(&opened)) {
        printError(error->errorDescription());
        return exitFailure;
    }
    auto& input = std::get<std::unique_ptr<ImportInput>>(opened);
    // The export's text is all in the listing once read: its pages go before the result is made.
    const QString sourceName = input->sourceName();
    const ImportOutcome outcome =
        importScan(input->bytes(), sourceName, [&input] { input.reset(); });
    if (const auto* error = std::get_if<ImportError>(&outcome)) {
        printError(error->errorDescription());
        return exitFailure;
    }
    const auto& result = std::get<AnalysisResult>(outcome);
    if (parsed->has(saveOption)) {
        if (const auto error = PersistenceService::shared().save(result)) {
            printError(error->errorDescription());
            return exitFailure;
        }
    }
    return writeOutput(json::encode(result)) ? exitSuccess : exitFailure;
}

} // namespace tessarine::cli
