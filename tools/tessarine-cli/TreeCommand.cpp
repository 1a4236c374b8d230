#include "Commands.h"

#include "Arguments.h"
#include "CancellableRun.h"

#include "model/Json.h"
#include "tree/FolderTreeRoot.h"
#include "tree/FolderTreeService.h"

#include <QDir>
#include <QFileInfo>

namespace tessarine::cli {

namespace {

FolderTreeOutcome buildTree(const QString& rootPath) {
    FolderTreeService service;
    const CancelToken task;
    return runCancellable<FolderTreeOutcome, FolderTreeProgress>({
        [&] { return service.build(rootPath, task); },
        [&] { task.cancel(); },
        [&] { return service.progress(); },
        FolderTreeError{FolderTreeError::Kind::cancelled, {}},
    });
}

} // namespace

int runTree(const QStringList& arguments) {
    const auto parsing = parseFolderCommand(arguments, {}, QStringLiteral("tree"));
    if (const int* usageStatus = std::get_if<int>(&parsing))
        return *usageStatus;
    const QFileInfo folder(std::get<Arguments>(parsing).positional.first());
    const QString rootPath = QDir::cleanPath(folder.absoluteFilePath());
    if (const auto rootError = unlistableRootError(rootPath))
        return reportFailure(*rootError);

    FolderTreeOutcome outcome = buildTree(rootPath);
    if (const auto* error = std::get_if<FolderTreeError>(&outcome))
        return reportFailure(*error);
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
