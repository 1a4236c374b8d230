#pragma once

#include "model/Records.h"
#include "storage/StorageError.h"

#include <QByteArray>

#include <variant>

namespace tessarine::csv {

// The largest files of a result as UTF-8 CSV: a header line, then one line per file in list order,
// every line ending in a bare line feed. Fails with encodingFailed when a text holds something
// UTF-8 cannot represent (a lone surrogate), rather than writing a silently altered path.
std::variant<QByteArray, StorageError> exportLargestFiles(const AnalysisResult& result);

} // namespace tessarine::csv
