#pragma once

#include "model/ScanOptions.h"

namespace tessarine {

// The options new scans use, kept in the application's settings between launches.
ScanOptions loadScanOptions();
void storeScanOptions(const ScanOptions& options);

} // namespace tessarine
