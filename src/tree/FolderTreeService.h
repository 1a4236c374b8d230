#pragma once

#include "model/CancelToken.h"
#include "model/Records.h"
#include "model/ScanOptions.h"
#include "tree/FolderTreeError.h"
#include "tree/FolderTreeProgress.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariant>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <variant>

namespace tessarine {

using FolderTreeOutcome = std::variant<FolderInfo, FolderTreeError>;

// Builds the per-folder size tree of a scanned folder on demand. build() blocks its (worker)
// thread; every progress record and the end of isBuilding are delivered on the thread the service
// lives on (the user-interface thread), through queued calls. isCancelled may be set from any
// thread while a build runs: it cancels the running build's task. A new build may start while a
// cancelled one is still stuck on a folder that does not answer: only the newest build's records
// reach the service's fields, and isBuilding and isCancelled go back to false when it ends, however
// it ends. The service must outlive its builds (see makeShared).
class FolderTreeService : public QObject {
    Q_OBJECT
    // The latest progress record, field by field for the interface; all change together.
    Q_PROPERTY(bool hasProgress READ hasProgress NOTIFY progressChanged)
    Q_PROPERTY(QString phaseName READ phaseName NOTIFY progressChanged)
    Q_PROPERTY(qint64 totalItems READ totalItems NOTIFY progressChanged)
    Q_PROPERTY(qint64 processedItems READ processedItems NOTIFY progressChanged)
    Q_PROPERTY(QString currentFolder READ currentFolder NOTIFY progressChanged)
    Q_PROPERTY(QDateTime startTime READ startTime NOTIFY progressChanged)
    Q_PROPERTY(QString statusText READ statusText NOTIFY progressChanged)
    Q_PROPERTY(bool isBuilding READ isBuilding NOTIFY isBuildingChanged)
    Q_PROPERTY(bool isCancelled READ isCancelled WRITE setCancelled NOTIFY isCancelledChanged)

public:
    explicit FolderTreeService(QObject* parent = nullptr);

    // A service that builds left behind on a worker thread keep alive as long as they run: the
    // last owner lets it go on the service's own thread.
    static std::shared_ptr<FolderTreeService> makeShared();

    std::optional<FolderTreeProgress> progress() const;
    bool isBuilding() const;
    bool isCancelled() const;
    void setCancelled(bool cancelled);

    // Call from a worker thread (or a test thread other than the service's). `options` are those
    // of the result whose tree this is, so that both count alike. `task` is the cancellation of
    // the caller's task: cancelled at any time, before this call included, it stops the build. A
    // build resets isCancelled when it starts, so a request made through it before then is
    // forgotten; the task's is not.
    FolderTreeOutcome build(const QString& rootPath, const ScanOptions& options = {},
                            CancelToken task = CancelToken());

    // Receives every progress record as it is made, before it is handed to the service's thread:
    // a caller can follow the whole sequence instead of sampling it, or act at an exact point of
    // the build. Records come one at a time and in order, on the thread running build() or, while
    // a large tree's subtrees are built side by side, on one of its helper threads. Set it before
    // build() starts.
    using ProgressObserver = std::function<void(const FolderTreeProgress&)>;
    void setProgressObserver(ProgressObserver observer) { m_observer = std::move(observer); }

    bool hasProgress() const { return m_progress.has_value(); }
    // "enumerating", "building", "complete", "cancelled"; empty before the first record.
    QString phaseName() const;
    qint64 totalItems() const { return m_progress ? m_progress->totalItems : 0; }
    qint64 processedItems() const { return m_progress ? m_progress->processedItems : 0; }
    QString currentFolder() const { return m_progress ? m_progress->currentFolder : QString(); }
    QDateTime startTime() const { return m_progress ? m_progress->startTime : QDateTime(); }
    QString statusText() const { return m_progress ? m_progress->statusText() : QString(); }
    // Seconds left from now, or undefined when there is no estimate (it changes with the clock,
    // so it is asked for rather than notified).
    Q_INVOKABLE QVariant estimatedTimeRemaining() const;

signals:
    void progressChanged();
    void isBuildingChanged();
    void isCancelledChanged();

private:
    using BuildId = quint64;

    FolderTreeOutcome walkAndAssemble(BuildId build, const QString& rootPath,
                                      const ScanOptions& options, const CancelToken& task);
    void publish(BuildId build, const FolderTreeProgress& progress);
    // Runs `change` on the service's thread if `build` is still the newest one by then.
    void applyIfNewest(BuildId build, std::function<void()> change);
    void setBuilding(bool building);

    std::optional<FolderTreeProgress> m_progress; // only touched on the service's thread
    bool m_building = false;                      // likewise
    std::atomic<bool> m_cancelled{false};
    // The running build's task, which setCancelled(true) cancels; the build polls its own copy.
    CancelToken m_task; // guarded by m_taskMutex
    std::mutex m_taskMutex;
    std::atomic<BuildId> m_newestBuild{0};
    ProgressObserver m_observer;
};

} // namespace tessarine
