#include "storage/HistoryLocation.h"

#include "storage/ConsoleLine.h"

#include <QDir>

namespace tessarine {

QString historyBaseDirectory(const QString& dataDirectory) {
    if (!dataDirectory.isEmpty())
        return dataDirectory;
    printConsoleLine(QStringLiteral(
        "Warning: Application Support directory not available, using temporary directory"));
    return QDir::tempPath();
}

} // namespace tessarine
