#pragma once

#include <QObject>
#include <QStringList>

namespace tessarine {

// How a scan and its folder tree count: the defaults leave hidden items out, cross into other
// file systems and take each file's own size, as the results of every earlier version did. A
// result keeps the options it was made with, so that its rescan and its folder tree count alike.
struct ScanOptions {
    Q_GADGET
    Q_PROPERTY(bool includeHidden MEMBER includeHidden)
    Q_PROPERTY(bool oneFileSystem MEMBER oneFileSystem)
    Q_PROPERTY(bool diskUsage MEMBER diskUsage)
    Q_PROPERTY(QStringList labels READ labels)

public:
    // Names starting with "." count like any other (packages keep their rule).
    bool includeHidden = false;
    // Folders on another device than the scanned folder are listed but not entered.
    bool oneFileSystem = false;
    // A file takes its allocated blocks (st_blocks x 512) rather than its length.
    bool diskUsage = false;

    bool isDefault() const { return *this == ScanOptions{}; }
    // How the options that are on read in a result's header, e.g. "one file system".
    QStringList labels() const;

    bool operator==(const ScanOptions&) const = default;
};

} // namespace tessarine
