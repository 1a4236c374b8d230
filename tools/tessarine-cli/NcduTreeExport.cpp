#include "NcduTreeExport.h"

#include "BackgroundJob.h"
#include "ExitCode.h"
#include "StandardStreams.h"

#include "import/NcduExportWriter.h"
#include "model/Format.h"
#include "scanner/DirectoryWalker.h"

#include "ReleaseInfo.h"

#include <atomic>

namespace tessarine::cli {

int writeNcduTree(const QString& rootPath, const ScanOptions& options) {
    std::atomic<bool> cancelled{false};
    std::atomic<qint64> found{0};
    DirectoryWalker::Options walk;
    walk.cancelled = &cancelled;
    // As the folder tree counts: a link at its own size, and every file kept with its name.
    walk.detail.linkSizes = true;
    walk.scanOptions = options;
    walk.onProgress = [&](const WalkProgress& progress) { found = progress.items; };
    DirectoryListing listing;
    const bool interrupted = runInBackground({
        [&] { listing = DirectoryWalker(std::move(walk)).walk(rootPath); },
        [&] { cancelled = true; },
        [&] { return found ? format::count(found) + QStringLiteral(" items") : QString(); },
    });
    if (interrupted || listing.wasCancelled()) {
        printError(QStringLiteral("Folder tree build was cancelled"));
        return exitCancelled;
    }
    const bool written =
        writeNcduExport(listing, QStringLiteral("tessarine-cli ") + QLatin1String(versionText),
                        [](QByteArrayView piece) { return writeOutput(piece); });
    return written ? exitSuccess : exitFailure;
}

} // namespace tessarine::cli
