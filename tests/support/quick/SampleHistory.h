#pragma once

#include "model/Records.h"

namespace tessarine {
class PersistenceService;
}

namespace tessarine::testing {

// A finished scan of `rootPath` with a little of everything the screens show.
AnalysisResult sampleResult(const QString& rootPath, const QDateTime& scanDate);

// Stores `count` sample results, one day apart; the newest is a scan of "/", the others of
// "/Users/ann/Project N".
void storeSampleHistory(PersistenceService& store, int count);

} // namespace tessarine::testing
