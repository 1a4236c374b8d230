#include "Commands.h"

#include "Arguments.h"
#include "CancellableRun.h"
#include "NcduTreeExport.h"
#include "ScanOptionArguments.h"

#include "model/Json.h"
#include "model/PathNames.h"
#include "tree/FolderTreeRoot.h"
#include "tree/FolderTreeService.h"

#include <algorithm>

namespace tessarine::cli {

namespace {

const QString ncduOption = QStringLiteral("--ncdu");

// How many levels of folders lie below the root.
qint64 levelsBelow(const FolderInfo& root) {
    qint64 deepest = root.depth;
    for (const FolderInfo* folder : root.flattened())
        deepest = std::max(deepest, folder->depth);
    return deepest - root.depth;
}

FolderTreeOutcome buildTree(const QString& rootPath, const ScanOptions& options) {
    const auto service = FolderTreeService::makeShared();
    const CancelToken task;
    return runCancellable<FolderTreeOutcome, FolderTreeProgress>({
        [service, rootPath, options, task] { return service->build(rootPath, options, task); },
        [task] { task.cancel(); },
        [service] { return service->progress(); },
        FolderTreeError{FolderTreeError::Kind::cancelled, {}},
    });
}

} // namespace

int runTree(const QStringList& arguments) {
    const auto parsing = parseFolderCommand(arguments, QStringList{ncduOption} + scanOptionNames(),
                                            QStringLiteral("tree"));
    if (const int* usageStatus = std::get_if<int>(&parsing))
        return *usageStatus;
    const Arguments& parsed = std::get<Arguments>(parsing);
    const QString rootPath = cleanRootPath(parsed.positional.first());
    if (std::get<Arguments>(parsing).has(ncduOption)) {
        if (const auto rootError = unlistableRootError(rootPath))
            return reportFailure(*rootError);
        return writeNcduTree(rootPath, scanOptionsOf(parsed));
    }

    FolderTreeOutcome outcome = withRootError(buildTree(rootPath, scanOptionsOf(parsed)), rootPath);
    if (const auto* error = std::get_if<FolderTreeError>(&outcome))
        return reportFailure(*error);
    // The tree of a folder chain deeper than JSON readers go (Qt's and Python's stop at some five
    // hundred levels of folders, others sooner) is refused with a reason rather than written: its
    // text could not be read back by whatever asked for it, and would be huge on the way, as each
    // folder's path grows with its depth (a chain 10,000 folders deep took 2.75 GB). The
    // desktop app still builds and shows such a tree; only its JSON form has this limit.
    const FolderInfo& tree = std::get<FolderInfo>(outcome);
    if (const qint64 levels = levelsBelow(tree); levels > json::deepestReadableFolderLevel) {
        printError(QStringLiteral("Folder tree too deep for JSON: %1 levels of folders below %2, "
                                  "but JSON readers stop at %3")
                       .arg(QString::number(levels), tree.path(),
                            QString::number(json::deepestReadableFolderLevel)));
        return exitFailure;
    }
    // Kept to the end of the process, which follows at once: handing a large tree's nodes back to
    // the allocator one by one would only delay it. Held by a static, so leak checkers see it.
    static const FolderInfo* keptUntilExit = nullptr;
    keptUntilExit = new FolderInfo(std::get<FolderInfo>(std::move(outcome)));
    // Written out as it is encoded: the text of a large tree is tens of megabytes.
    const bool written =
        json::encode(*keptUntilExit, [](QByteArrayView piece) { return writeOutput(piece); });
    return written ? exitSuccess : exitFailure;
}

} // namespace tessarine::cli
