#include "ProgressText.h"

#include "ProgressParts.h"

#include "model/Format.h"
#include "model/ScanProgress.h"

namespace tessarine::cli {

namespace {

QString itemsText(qint64 done, std::optional<qint64> total) {
    if (total)
        return format::count(done) + QStringLiteral(" / ") + format::count(*total) +
               QStringLiteral(" items");
    return format::count(done) + QStringLiteral(" items");
}

} // namespace

template <>
QString ProgressText<ScanProgress>::describe(const ScanProgress& progress, const QDateTime& now) {
    const qint64 done = progress.filesScanned + progress.foldersScanned;
    QStringList parts{rawValue(progress.phase), itemsText(done, progress.estimatedTotalFiles)};
    // Discovery reads no sizes, so its byte count is always zero.
    if (progress.bytesScanned > 0)
        parts.append(format::byteCount(progress.bytesScanned));
    appendRate(parts, m_rate.rate(int(progress.phase), done, now), QStringLiteral("items"));
    if (const auto remaining = progress.formattedRemainingTime(now))
        parts.append(*remaining);
    insertWaiting(parts, progress.unansweredFolder);
    return joinParts(parts);
}

} // namespace tessarine::cli
