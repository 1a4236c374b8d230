#include "NcduTreeExport.h"

#include "BackgroundJob.h"
#include "ExitCode.h"
#include "ProgressParts.h"
#include "StandardStreams.h"

#include "import/NcduExportWriter.h"
#include "model/Format.h"
#include "model/PathBytes.h"
#include "scanner/DirectoryWalker.h"

#include "ReleaseInfo.h"

#include <atomic>
#include <memory>
#include <mutex>

namespace tessarine::cli {

namespace {

// What the walk touches, shared with its worker, which Ctrl-C may leave behind on a folder that
// does not answer (see runInBackground).
struct NcduWalk {
    std::atomic<bool> cancelled{false};
    std::atomic<qint64> found{0};
    std::mutex waitingMutex;
    QString waitingFor; // guarded by waitingMutex
    DirectoryListing listing;
};

} // namespace

int writeNcduTree(const QString& rootPath, const ScanOptions& options) {
    const auto shared = std::make_shared<NcduWalk>();
    DirectoryWalker::Options walk;
    walk.cancelled = &shared->cancelled;
    // As the folder tree counts: a link or a package at its own size, and every file kept with its
    // name.
    walk.detail.ownSizes = true;
    walk.scanOptions = options;
    walk.onProgress = [state = shared.get()](const WalkProgress& progress) {
        state->found = progress.items;
        std::lock_guard lock(state->waitingMutex);
        state->waitingFor = pathFromBytes(progress.unansweredFolderPath);
    };
    const bool interrupted = runInBackground({
        [shared, walk = std::move(walk), rootPath]() mutable {
            shared->listing = DirectoryWalker(std::move(walk)).walk(rootPath);
        },
        [shared] { shared->cancelled = true; },
        [&state = *shared] {
            if (!state.found)
                return QString();
            QStringList parts{format::count(state.found) + QStringLiteral(" items")};
            std::lock_guard lock(state.waitingMutex);
            insertWaiting(parts, state.waitingFor);
            return joinParts(parts);
        },
    });
    const DirectoryListing& listing = shared->listing;
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
