#include "tree/FolderTreeService.h"

#include "model/Format.h"
#include "model/PathNames.h"
#include "tree/FolderEnumeration.h"
#include "tree/FolderTreeAssembly.h"

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
    using Phase = FolderTreeProgress::Phase;
    setCancelled(false);
    {
        std::lock_guard lock(m_taskMutex);
        m_task = task;
    }
    setBuilding(true);
    m_startTime = QDateTime::currentDateTimeUtc();
    const QString root = cleanRootPath(rootPath);
    publish(record(Phase::enumerating, 0, 0, root));

    const DirectoryListing listing =
        enumerateFolders(root, options, task.flag(), [this](qint64 items, qint64 folders) {
            publish(record(Phase::enumerating, 0, items, foundText(items, folders)));
        });
    if (task.isCancelled())
        return cancelledError();
    const qint64 folderCount = treeFolderCount(listing);
    publish(record(Phase::enumerating, 0, listing.itemCount(),
                   foundText(listing.itemCount(), folderCount)));

    publish(record(Phase::building, folderCount, 0, root));
    FolderTreeAssembly assembly(
        task.flag(), folderCount, [&](qint64 processed, const QString& folderName) {
            publish(record(Phase::building, folderCount, processed, folderName));
        });
    std::optional<FolderInfo> tree = assembly.assemble(listing, root);
    if (!tree)
        return cancelledError();
    publish(record(Phase::complete, folderCount, assembly.processedCount(), root));
    setBuilding(false);
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
void FolderTreeService::publish(const FolderTreeProgress& progress) {
    if (m_observer)
        m_observer(progress);
    QMetaObject::invokeMethod(this, [this, progress] {
        m_progress = progress;
        emit progressChanged();
    });
}

void FolderTreeService::setBuilding(bool building) {
    QMetaObject::invokeMethod(this, [this, building] {
        if (m_building == building)
            return;
        m_building = building;
        emit isBuildingChanged();
    });
}

FolderTreeProgress FolderTreeService::record(FolderTreeProgress::Phase phase, qint64 total,
                                             qint64 processed, const QString& currentFolder) const {
    return FolderTreeProgress{phase, total, processed, currentFolder, m_startTime};
}

} // namespace tessarine
