#include "StoredScanId.h"

#include "StandardStreams.h"

namespace tessarine::cli {

std::optional<QUuid> storedScanId(const QString& idText) {
    const QUuid id = QUuid::fromString(idText);
    if (!id.isNull())
        return id;
    printError(QStringLiteral("Not a scan id: ") + idText);
    return std::nullopt;
}

void printNoStoredScan(const QString& idText) {
    printError(QStringLiteral("No stored scan with id ") + idText);
}

} // namespace tessarine::cli
