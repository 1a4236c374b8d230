#pragma once

#include "model/Records.h"
#include "storage/FileStamp.h"

#include <QList>

#include <optional>

namespace tessarine {

// The few whole results read last, each with the stamp of the file it came from: going back and
// forth between the dashboard and a comparison rereads nothing, while the history's thousands of
// scans stay summaries.
class RecentResults {
public:
    static constexpr qsizetype capacity = 3;

    // The result read from a file that still has this stamp.
    std::optional<AnalysisResult> find(const QUuid& id, const FileStamp& stamp);
    void keep(const AnalysisResult& result, const FileStamp& stamp);
    void forget(const QUuid& id);

private:
    struct Kept {
        AnalysisResult result;
        FileStamp stamp;
    };
    // Most recently used first.
    QList<Kept> m_kept;
};

} // namespace tessarine
