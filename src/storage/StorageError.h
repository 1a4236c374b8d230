#pragma once

#include "storage/FileSystemError.h"
#include "storage/PersistenceError.h"

#include <QString>

#include <variant>

namespace tessarine {

// Everything the history store and the exports can fail with: their own error, or the file
// system's. Callers mostly just show it, hence the one errorDescription() for both.
struct StorageError {
    std::variant<PersistenceError, FileSystemError> error;

    QString errorDescription() const;
    // The store's own error, or nullptr when the file system failed.
    const PersistenceError* persistenceError() const {
        return std::get_if<PersistenceError>(&error);
    }

    bool operator==(const StorageError&) const = default;
};

} // namespace tessarine
