#include "ProgressParts.h"

#include "model/Format.h"

namespace tessarine::cli {

void appendRate(QStringList& parts, std::optional<double> perSecond, const QString& unit) {
    if (perSecond)
        parts.append(format::count(qRound64(*perSecond)) + u' ' + unit + QStringLiteral("/s"));
}

void insertWaiting(QStringList& parts, const QString& unansweredFolder) {
    if (!unansweredFolder.isEmpty())
        parts.insert(1, format::waitingFor(unansweredFolder));
}

QString joinParts(const QStringList& parts) {
    return parts.join(QStringLiteral("  "));
}

} // namespace tessarine::cli
