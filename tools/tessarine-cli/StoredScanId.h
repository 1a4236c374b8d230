#pragma once

#include <QString>
#include <QUuid>

#include <optional>

namespace tessarine::cli {

// The id of a stored scan as the user typed it; none, with the reason printed, when it is not one.
std::optional<QUuid> storedScanId(const QString& idText);

// Printed when the history holds no scan with the id the user typed, most likely a typo.
void printNoStoredScan(const QString& idText);

} // namespace tessarine::cli
