#pragma once

#include <QString>

namespace tessarine {

// Why a scan produced no result. Cancellation is one of the reasons, so that a caller can tell it
// apart and stay silent about it.
struct ScanError {
    enum class Kind { cannotAccessDirectory, permissionDenied, cancelled };

    Kind kind = Kind::cancelled;
    QString path; // the folder concerned; empty for cancelled

    // "Cannot access directory: /x", "Permission denied: /x", "Scan was cancelled".
    QString errorDescription() const;

    bool operator==(const ScanError&) const = default;
};

} // namespace tessarine
