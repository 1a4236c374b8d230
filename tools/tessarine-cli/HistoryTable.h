#pragma once

#include "model/ScanSummary.h"

#include <QList>
#include <QString>

namespace tessarine::cli {

// The stored scans as an aligned table with a header row: date, folder, total size, files, id.
// Sizes and counts are right-aligned so that their digits line up.
QString historyTable(const QList<ScanSummary>& results);

} // namespace tessarine::cli
