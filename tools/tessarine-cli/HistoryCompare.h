#pragma once

#include <QString>

namespace tessarine::cli {

// `history compare OLD NEW [--json]`: what changed between two stored scans, the earlier of the
// two taken as before whichever order they are named in. Returns the exit status.
int compareStoredScans(const QString& firstId, const QString& secondId, bool asJson);

} // namespace tessarine::cli
