#include "RecordedBuild.h"

namespace tessarine::testing {

bool RecordedBuild::wasCancelled() const {
    const auto* error = std::get_if<FolderTreeError>(&outcome);
    return error && error->kind == FolderTreeError::Kind::cancelled;
}

QList<FolderTreeProgress> RecordedBuild::recordsIn(FolderTreeProgress::Phase phase) const {
    QList<FolderTreeProgress> matching;
    for (const FolderTreeProgress& record : records) {
        if (record.phase == phase)
            matching.append(record);
    }
    return matching;
}

RecordedBuild recordBuild(FolderTreeService& service, const QString& path,
                          const RecordReaction& react) {
    QList<FolderTreeProgress> records;
    service.setProgressObserver([&](const FolderTreeProgress& record) {
        records.append(record);
        if (react)
            react(service, record);
    });
    FolderTreeOutcome outcome = service.build(path);
    service.setProgressObserver({});
    return {std::move(outcome), records};
}

RecordedBuild recordBuild(const QString& path, const RecordReaction& react) {
    FolderTreeService service;
    return recordBuild(service, path, react);
}

} // namespace tessarine::testing
