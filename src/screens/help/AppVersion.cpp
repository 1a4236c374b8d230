#include "AppVersion.h"

namespace tessarine {

QString versionText(const QString& shortVersion, const QString& buildNumber) {
    return QStringLiteral("%1 (%2)").arg(shortVersion.isEmpty() ? QStringLiteral("1.0")
                                                                : shortVersion,
                                         buildNumber.isEmpty() ? QStringLiteral("1") : buildNumber);
}

QString AppVersion::text() {
    return versionText(QStringLiteral(TESSARINE_SHORT_VERSION),
                       QStringLiteral(TESSARINE_BUILD_NUMBER));
}

} // namespace tessarine
