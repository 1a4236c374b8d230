#include "tree/FolderTreeService.h"

#include "model/Format.h"
#include "model/PathBytes.h"
#include "model/PathNames.h"
#include "scanner/DirectoryWalker.h"
#include "tree/FolderEnumeration.h"
#include "tree/FolderTreeAssembly.h"

#include <QThread>

#include <array>

namespace tessarine {

namespace {

// "1,234 items (56 folders)".
QString foundText(qint64 items, qint64 folders) {
    return format::count(items) + QStringLiteral(" items (") + format::count(folders) +
           QStringLiteral(" folders)");
}

FolderTreeError cancelledError() {
    return FolderTreeError{FolderTreeError::Kind::cancelled, QString()};
}

} // namespace

FolderTreeService::FolderTreeService(QObject* parent)
    : QObject(parent) {}

std::shared_ptr<FolderTreeService> FolderTreeService::makeShared() {
    return std::shared_ptr<FolderTreeService>(new FolderTreeService,
                                              [](FolderTreeService* service) {
                                                  if (service->thread() == QThread::currentThread())
                                                      delete service;
                                                  else
                                                      service->deleteLater();
                                              });
}

std::optional<FolderTreeProgress> FolderTreeService::progress() const {
    return m_progress;
}

bool FolderTreeService::isBuilding() const {
    return m_building;
}

bool FolderTreeService::isCancelled() const {
    return m_cancelled.load();
}

void FolderTreeService::setCancelled(bool cancelled) {
    if (cancelled) {
        std::lock_guard lock(m_taskMutex);
        m_task.cancel();
    }
    if (m_cancelled.exchange(cancelled) != cancelled)
        QMetaObject::invokeMethod(this, [this] { emit isCancelledChanged(); });
}

FolderTreeOutcome FolderTreeService::build(const QString& rootPath, const ScanOptions& options,
                                           CancelToken task) {
    const BuildId build = ++m_newestBuild;
    setCancelled(false);
    {
        std::lock_guard lock(m_taskMutex);
        m_task = task;
    }
    applyIfNewest(build, [this] { setBuilding(true); });
    FolderTreeOutcome outcome = walkAndAssemble(build, rootPath, options, task);
    // A cancelled build is over too, and the request that cancelled it with it.
    applyIfNewest(build, [this] {
        setBuilding(false);
        setCancelled(false);
    });
    return outcome;
}

FolderTreeOutcome FolderTreeService::walkAndAssemble(BuildId build, const QString& rootPath,
                                                     const ScanOptions& options,
                                                     const CancelToken& task) {
    using Phase = FolderTreeProgress::Phase;
    const QDateTime startTime = QDateTime::currentDateTimeUtc();
    const auto record = [&](Phase phase, qint64 total, qint64 processed,
                            const QString& currentFolder) {
        return FolderTreeProgress{phase, total, processed, currentFolder, startTime, QString()};
    };
    const QString root = cleanRootPath(rootPath);
    publish(build, record(Phase::enumerating, 0, 0, root));

    const DirectoryListing listing =
        enumerateFolders(root, options, task.flag(), [&](const WalkProgress& walk) {
            FolderTreeProgress progress =
                record(Phase::enumerating, 0, walk.items, foundText(walk.items, walk.folders));
            // The folder at hand is then the one the walk waits for.
            if (!walk.unansweredFolderPath.isEmpty()) {
                progress.unansweredFolder = pathFromBytes(walk.unansweredFolderPath);
                progress.currentFolder =
                    format::waitingFor(lastPathComponent(progress.unansweredFolder));
            }
            publish(build, progress);
        });
    if (task.isCancelled())
        return cancelledError();
    const qint64 folderCount = treeFolderCount(listing);
    publish(build, record(Phase::enumerating, 0, listing.itemCount(),
                          foundText(listing.itemCount(), folderCount)));

    publish(build, record(Phase::building, folderCount, 0, root));
    FolderTreeAssembly assembly(
        task.flag(), folderCount, [&](qint64 processed, const QString& folderName) {
            publish(build, record(Phase::building, folderCount, processed, folderName));
        });
    std::optional<FolderInfo> tree = assembly.assemble(listing, root);
    if (!tree)
        return cancelledError();
    publish(build, record(Phase::complete, folderCount, assembly.processedCount(), root));
    return std::move(*tree);
}

QString FolderTreeService::phaseName() const {
    static const std::array<QString, 4> names{
        QStringLiteral("enumerating"), QStringLiteral("building"), QStringLiteral("complete"),
        QStringLiteral("cancelled")};
    return m_progress ? names.at(std::size_t(m_progress->phase)) : QString();
}

QVariant FolderTreeService::estimatedTimeRemaining() const {
    const std::optional<double> seconds =
        m_progress ? m_progress->estimatedTimeRemaining() : std::nullopt;
    return seconds ? QVariant(*seconds) : QVariant();
}

// The build runs on its own thread, so the interface never waits for it and needs no yielding:
// each record is simply handed over to the service's thread (at once when that is this thread).
void FolderTreeService::publish(BuildId build, const FolderTreeProgress& progress) {
    if (m_observer)
        m_observer(progress);
    applyIfNewest(build, [this, progress] {
        m_progress = progress;
        emit progressChanged();
    });
}

// Checked where the change lands, so a record a stuck build made long ago cannot overwrite what
// a newer build shows.
void FolderTreeService::applyIfNewest(BuildId build, std::function<void()> change) {
    QMetaObject::invokeMethod(this, [this, build, change = std::move(change)] {
        if (build == m_newestBuild.load())
            change();
    });
}

void FolderTreeService::setBuilding(bool building) {
    if (m_building == building)
        return;
    m_building = building;
    emit isBuildingChanged();
}

} // namespace tessarine
