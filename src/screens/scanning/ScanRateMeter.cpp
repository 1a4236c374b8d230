#include "screens/scanning/ScanRateMeter.h"

namespace tessarine {

void ScanRateMeter::tick(const ScanProgress& progress) {
    m_filesPerSecond = double(progress.filesScanned - m_previousFilesScanned);
    m_bytesPerSecond = progress.bytesScanned - m_previousBytesScanned;
    m_previousFilesScanned = progress.filesScanned;
    m_previousBytesScanned = progress.bytesScanned;
}

} // namespace tessarine
