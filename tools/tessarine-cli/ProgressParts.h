#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tessarine::cli {

// "45,678 items/s", left out while the rate is not known yet.
void appendRate(QStringList& parts, std::optional<double> perSecond, const QString& unit);

// "Waiting for /mnt/photos to respond...", when a folder keeps the walk waiting; next to the
// phase, so that a narrow terminal cuts the figures rather than this.
void insertWaiting(QStringList& parts, const QString& unansweredFolder);

// The parts of a progress line, spaced apart so that each figure stands on its own.
QString joinParts(const QStringList& parts);

} // namespace tessarine::cli
