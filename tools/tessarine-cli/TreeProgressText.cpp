#include "ProgressText.h"

#include "ProgressParts.h"

#include "model/Format.h"
#include "tree/FolderTreeProgress.h"

namespace tessarine::cli {

template <>
QString ProgressText<FolderTreeProgress>::describe(const FolderTreeProgress& progress,
                                                   const QDateTime& now) {
    QStringList parts{rawValue(progress.phase), progress.statusText()};
    // The enumeration counts every entry it meets; the build counts folders.
    const QString unit = progress.phase == FolderTreeProgress::Phase::enumerating
                             ? QStringLiteral("items")
                             : QStringLiteral("folders");
    appendRate(parts, m_rate.rate(int(progress.phase), progress.processedItems, now), unit);
    if (const auto remaining = progress.estimatedTimeRemaining(now))
        parts.append(format::compactDuration(*remaining) + QStringLiteral(" remaining"));
    insertWaiting(parts, progress.unansweredFolder);
    return joinParts(parts);
}

} // namespace tessarine::cli
