#include "model/ScanSummary.h"

#include "model/PathNames.h"
#include "model/Records.h"

namespace tessarine {

ScanSummary ScanSummary::of(const AnalysisResult& result) {
    return {.id = result.id,
            .scanDate = result.scanDate,
            .rootPath = result.rootPath,
            .rootName = result.rootName,
            .totalSize = result.totalSize,
            .fileCount = result.fileCount,
            .folderCount = result.folderCount,
            .maxDepth = result.maxDepth,
            .scanDuration = result.scanDuration,
            .importSource = result.importSource};
}

QString ScanSummary::folderName() const {
    return scannedFolderName(rootPath);
}

} // namespace tessarine
