#pragma once

#include "model/FolderSizes.h"

#include <QString>

#include <optional>
#include <vector>

namespace tessarine {

// One folder whose size changed between two scans of the same folder.
struct FolderChange {
    QString path;
    // None where the folder did not exist, or held less than the comparison's cut-off.
    std::optional<qint64> before;
    std::optional<qint64> after;
    // After minus before, a side without a figure counted as nothing.
    qint64 change = 0;

    bool operator==(const FolderChange&) const = default;
};

struct FolderComparison {
    enum class Outcome { compared, differentFolders, noFolderSizes };

    Outcome outcome = Outcome::noFolderSizes;
    // The larger of the two scans' cut-offs: below it neither scan's figure is trusted, since the
    // other would not have kept the same folder.
    qint64 cutoff = 0;
    // Largest change first; folders of equal change in the order of the earlier scan's tree.
    std::vector<FolderChange> changes;
};

// Which folders grew, appeared, shrank or went between two scans of the same root.
//
// A folder that appeared or went is listed alone: everything inside it came or went with it.
// Of the folders in both scans, one is listed when its change is partly its own (its files, or
// folders too small to be kept) or comes through two or more of its folders. A folder whose whole
// change is one sub-folder's adds nothing to that sub-folder's line, so only the sub-folder is
// listed. The scanned folder itself is never listed: its change is the change in totals.
FolderComparison compareFolders(const QString& rootBefore, const std::optional<FolderSizes>& before,
                                const QString& rootAfter, const std::optional<FolderSizes>& after);

// A side without a figure: "under 12 KB" below a cut-off, "—" where every folder was kept.
QString unknownFolderSizeText(qint64 cutoff);

// The one line shown instead of the folders when they cannot be compared; empty when they can.
QString folderComparisonNote(const FolderComparison& comparison);

} // namespace tessarine
