#pragma once

#include "model/FolderSizes.h"
#include "model/SaturatingSum.h"

#include <QByteArrayView>

#include <vector>

namespace tessarine {

// Sums every folder's files as the analysis pass meets them, in listing order (a folder, then its
// contents), so that a scan knows its folder sizes without walking anything twice: only the
// folders currently open are looked at, and a folder's total goes to its parent when the pass
// leaves it. What the pass does not count (links, unreadable entries) is not counted here either,
// and a later name of a hard-linked file arrives with no size, so the folders add up to the scan.
class FolderSizeTally {
public:
    // Up to this many folders all are kept: the whole table is then a few tens of kilobytes, less
    // than the scan's own history file, and a folder missing from it surely did not exist.
    static constexpr std::size_t keptWhole = 1000;
    // Past that, a folder is kept when it holds at least this share of the scan (one part in ten
    // thousand), and only the largest keptAtMost of those. On /usr the share alone keeps under a
    // thousand folders, every one a change worth reporting could be in; on a tree of many folders
    // of like size (the benchmark tree) it kept ten thousand, a table three times the size of the
    // history file, hence the count.
    static constexpr qint64 cutoffDivisor = 10000;
    static constexpr std::size_t keptAtMost = 2000;

    FolderSizeTally();

    // `depth` as the listing cursor gives it: 1 for an entry directly inside the scanned folder.
    // `name` must outlive the tally (it points into the listing).
    void addFolder(qint64 depth, QByteArrayView name);
    void addFile(qint64 depth, qint64 size) { addFiles(depth, size, 1); }
    // Several files of one folder at once, as a folder tree knows them.
    void addFiles(qint64 depth, qint64 size, qint64 count) {
        closeDeeperThan(depth);
        Row& folder = m_rows[std::size_t(m_open.back())];
        addSaturating(folder.size, size);
        addSaturating(folder.fileCount, count);
    }

    // The table, with the folders under the cut-off left out. Call once, after the last item.
    FolderSizes finish();

private:
    struct Row {
        QByteArrayView name;
        qint32 parent;
        qint64 size;
        qint64 fileCount;
    };

    void closeDeeperThan(qint64 depth) {
        while (qint64(m_open.size()) > depth)
            closeInnermost();
    }
    void closeInnermost();
    qint64 sizeAfterTheLargest() const;

    std::vector<Row> m_rows;    // every folder met, in listing order
    std::vector<qint32> m_open; // the folders the pass is inside, the scanned folder first
};

} // namespace tessarine
