#pragma once

#include <QString>

namespace tessarine {

struct FolderTreeError {
    enum class Kind { accessDenied, cancelled };

    Kind kind = Kind::cancelled;
    QString path; // for accessDenied

    // "Cannot access: /x", "Folder tree building was cancelled".
    QString errorDescription() const;

    bool operator==(const FolderTreeError&) const = default;
};

} // namespace tessarine
