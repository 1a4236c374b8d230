#include "model/Format.h"

namespace tessarine::format {

QString waitingFor(const QString& folder) {
    return QStringLiteral("Waiting for ") + folder + QStringLiteral(" to respond...");
}

} // namespace tessarine::format
