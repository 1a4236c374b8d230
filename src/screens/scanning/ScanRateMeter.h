#pragma once

#include "model/ScanProgress.h"

namespace tessarine {

// The per-second rates of the scanning screen. The screen's one-second timer ticks it with the
// latest snapshot; each rate is the raw difference to the previous tick, unsmoothed, so the first
// tick measures from zero.
class ScanRateMeter {
public:
    double filesPerSecond() const { return m_filesPerSecond; }
    qint64 bytesPerSecond() const { return m_bytesPerSecond; }

    void tick(const ScanProgress& progress);

private:
    double m_filesPerSecond = 0;
    qint64 m_bytesPerSecond = 0;
    qint64 m_previousFilesScanned = 0;
    qint64 m_previousBytesScanned = 0;
};

} // namespace tessarine
