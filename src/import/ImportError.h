#pragma once

#include <QString>

namespace tessarine {

// Why a file could not be imported as a scan.
struct ImportError {
    enum class Kind {
        cannotRead, // the file itself: missing, unreadable, a folder, too large
        notAScan,   // neither an ncdu export nor a Tessarine result
        malformed,  // one of them, but broken: the detail says where and how
        empty,      // a well-formed export of a folder with nothing a scan would count
    };

    Kind kind;
    QString detail;

    QString errorDescription() const;
    bool operator==(const ImportError&) const = default;
};

} // namespace tessarine
