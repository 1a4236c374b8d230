#pragma once

#include "model/Records.h"
#include "model/ScanProgress.h"
#include "scanner/ScanError.h"

#include <QString>

#include <mutex>
#include <optional>
#include <variant>

namespace tessarine {

using ScanOutcome = std::variant<AnalysisResult, ScanError>;

// Turns one folder into one AnalysisResult: a discovery pass lists every item (in parallel, with
// each item's metadata), then an analysis pass folds the items in listing order. One scanner
// serves one scan. scan() blocks its calling thread; cancel() and currentProgress() may be called
// from any other thread meanwhile.
class FileSystemScanner {
public:
    // The analysis pass publishes a snapshot every this many analysed items.
    static constexpr qint64 progressUpdateInterval = 100;

    FileSystemScanner() = default;
    FileSystemScanner(const FileSystemScanner&) = delete;
    FileSystemScanner& operator=(const FileSystemScanner&) = delete;

    // Accepts an absolute or relative path; the result's rootPath is its cleaned absolute form.
    ScanOutcome scan(const QString& folderPath);

    // Asks a running scan to stop. A cancel made before scan() starts is forgotten.
    void cancel();

    // A copy of the latest published snapshot; none before the scan starts.
    std::optional<ScanProgress> currentProgress() const;

private:
    // (members are the implementation's own)
};

} // namespace tessarine
