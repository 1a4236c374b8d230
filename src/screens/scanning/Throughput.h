#pragma once

#include <QString>

namespace tessarine {

// A byte rate in binary units without the per-second suffix: "1023 B", "1.0 KB", "1.0 MB",
// "1.00 GB". A rate changes every second, so it gets a fixed precision per unit that keeps its
// width steady, rather than the byte-count text used for sizes.
QString formatThroughput(qint64 bytesPerSecond);

} // namespace tessarine
