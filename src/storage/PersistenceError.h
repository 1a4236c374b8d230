#pragma once

#include <QString>

#include <optional>

namespace tessarine {

// The history store's own failures. The store raises only directoryNotAccessible; the CSV export
// raises encodingFailed; the last two are named for callers that report those conditions.
struct PersistenceError {
    enum class Kind { directoryNotAccessible, encodingFailed, decodingFailed, fileNotFound };

    Kind kind;
    // Why the history directory could not be made, for directoryNotAccessible.
    std::optional<QString> underlying;

    QString errorDescription() const;

    bool operator==(const PersistenceError&) const = default;
};

} // namespace tessarine
