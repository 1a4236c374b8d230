#pragma once

#include <QString>

namespace tessarine {

// A write, listing or removal that the file system refused, passed on to the caller as it came.
struct FileSystemError {
    QString description;

    // The system's reason ("Permission denied") says nothing about where, so the path goes with it.
    static FileSystemError about(QStringView failedAction, const QString& path,
                                 const QString& reason);

    QString errorDescription() const { return description; }

    bool operator==(const FileSystemError&) const = default;
};

} // namespace tessarine
