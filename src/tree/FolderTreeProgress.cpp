#include "tree/FolderTreeProgress.h"

#include "model/Format.h"

#include <algorithm>

namespace tessarine {

namespace {

// Too little is done below this share for the extrapolation to mean anything.
constexpr double minimumEstimableFraction = 0.05;

} // namespace

QString FolderTreeProgress::statusText() const {
    switch (phase) {
    case Phase::enumerating:
        return format::count(processedItems) + QStringLiteral(" items found");
    case Phase::building:
        if (totalItems < 1)
            return format::count(processedItems) + QStringLiteral(" folders");
        return format::count(processedItems) + QStringLiteral(" / ") + format::count(totalItems) +
               QStringLiteral(" folders");
    case Phase::complete:
        return format::count(processedItems) + QStringLiteral(" folders processed");
    case Phase::cancelled:
        return QStringLiteral("Cancelled");
    }
    Q_UNREACHABLE();
    return {};
}

std::optional<double> FolderTreeProgress::estimatedTimeRemaining(const QDateTime& now) const {
    if (processedItems < 1 || totalItems < 1)
        return std::nullopt;
    const double fraction = double(processedItems) / double(totalItems);
    if (fraction <= minimumEstimableFraction)
        return std::nullopt;
    const double elapsed = double(startTime.msecsTo(now)) / 1000.0;
    const double remaining = elapsed / std::min(fraction, 1.0) - elapsed;
    return std::max(remaining, 0.0);
}

QString rawValue(FolderTreeProgress::Phase phase) {
    switch (phase) {
    case FolderTreeProgress::Phase::enumerating:
        return QStringLiteral("Scanning folders...");
    case FolderTreeProgress::Phase::building:
        return QStringLiteral("Building tree...");
    case FolderTreeProgress::Phase::complete:
        return QStringLiteral("Complete");
    case FolderTreeProgress::Phase::cancelled:
        return QStringLiteral("Cancelled");
    }
    Q_UNREACHABLE();
    return {};
}

} // namespace tessarine
