#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>

#include <vector>

namespace tessarine {

// One folder of a FolderSizes table. Its name is in file-system bytes, as the folder is named on
// disk, so that two scans match a folder by exactly what it is called even when the name is not
// valid text.
struct FolderSizeRow {
    qint32 parent = -1; // the row of the folder that holds it; -1 for the scanned folder
    QByteArray name;    // empty for the scanned folder
    qint64 size = 0;    // bytes of the files in it and below it
    qint64 fileCount = 0;

    bool operator==(const FolderSizeRow&) const = default;
};

// The size of every folder of a scan worth keeping, beside the scan's own figures: what a later
// scan of the same folder is compared with to tell which folders grew. Row 0 is the scanned
// folder; every other row comes after its parent's. Folders holding less than `cutoff` bytes were
// left out, so a folder missing here either did not exist or held less than that.
struct FolderSizes {
    qint64 cutoff = 0;
    std::vector<FolderSizeRow> rows;

    // Appends a folder and returns its row. Anything that knows folder sizes may build a table
    // this way, not only a scan's walk.
    qint32 add(qint32 parent, QByteArrayView name, qint64 size, qint64 fileCount) {
        rows.push_back({parent, name.toByteArray(), size, fileCount});
        return qint32(rows.size() - 1);
    }

    bool operator==(const FolderSizes&) const = default;
};

} // namespace tessarine
