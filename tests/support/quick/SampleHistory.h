#pragma once

#include "model/Records.h"
#include "model/ScanProgress.h"

namespace tessarine {
class PersistenceService;
}

namespace tessarine::testing {

// A finished scan of `rootPath` with a little of everything the screens show.
AnalysisResult sampleResult(const QString& rootPath, const QDateTime& scanDate);

// A scan 30 seconds in, analysing, two fifths of the estimated files done.
ScanProgress sampleProgress(const QString& currentPath);

// Stores `count` sample results, one day apart; the newest is a scan of "/", the others of
// "/Users/ann/Project N".
void storeSampleHistory(PersistenceService& store, int count);

} // namespace tessarine::testing
