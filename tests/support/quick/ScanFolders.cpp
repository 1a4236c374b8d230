#include "ScanFolders.h"

namespace tessarine::testing {

void makeScannableFolder(const QString& root, int fileCount) {
    for (int i = 0; i < fileCount; ++i)
        writeFile(root + QStringLiteral("/level%1/file %2.txt").arg(i % 3).arg(i), 100 * (i + 1));
}

} // namespace tessarine::testing
