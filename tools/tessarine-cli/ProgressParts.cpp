#include "ProgressParts.h"

#include "model/Format.h"

namespace tessarine::cli {

void appendRate(QStringList& parts, std::optional<double> perSecond, const QString& unit) {
    if (perSecond)
        parts.append(format::count(qRound64(*perSecond)) + u' ' + unit + QStringLiteral("/s"));
}

QString joinParts(const QStringList& parts) {
    return parts.join(QStringLiteral("  "));
}

} // namespace tessarine::cli
