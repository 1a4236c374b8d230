#pragma once

#include "model/Records.h"
#include "tree/FolderTreeError.h"
#include "tree/FolderTreeProgress.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <optional>
#include <variant>

namespace tessarine {

using FolderTreeOutcome = std::variant<FolderInfo, FolderTreeError>;

// Builds the per-folder size tree of a scanned folder on demand. build() blocks its (worker)
// thread; every progress record and the end of isBuilding are delivered on the thread the service
// lives on (the user-interface thread), through queued calls. isCancelled may be set from any
// thread while a build runs.
class FolderTreeService : public QObject {
    Q_OBJECT

public:
    explicit FolderTreeService(QObject* parent = nullptr);

    std::optional<FolderTreeProgress> progress() const;
    bool isBuilding() const;
    bool isCancelled() const;
    void setCancelled(bool cancelled);

    // Call from a worker thread (or a test thread other than the service's).
    FolderTreeOutcome build(const QString& rootPath);

signals:
    void progressChanged();
    void isBuildingChanged();
    void isCancelledChanged();
};

} // namespace tessarine
