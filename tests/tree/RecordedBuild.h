#pragma once

#include "tree/FolderTreeService.h"

#include <QByteArrayList>
#include <QList>

#include <functional>

namespace tessarine::testing {

// The outcome of one folder tree build together with every progress record it made, in order.
struct RecordedBuild {
    FolderTreeOutcome outcome;
    QList<FolderTreeProgress> records;

    const FolderInfo& tree() const { return std::get<FolderInfo>(outcome); }
    bool wasCancelled() const;
    QList<FolderTreeProgress> recordsIn(FolderTreeProgress::Phase phase) const;
};

// Builds the tree of `path` on `service`, on the calling thread. `react`, when given, sees each
// record as it is made and may act on the service (cancel it) or on the folders being read.
using RecordReaction = std::function<void(FolderTreeService&, const FolderTreeProgress&)>;
RecordedBuild recordBuild(FolderTreeService& service, const QString& path,
                          const RecordReaction& react = {});
RecordedBuild recordBuild(const QString& path, const RecordReaction& react = {});

} // namespace tessarine::testing
