#pragma once

#include "ChangeRow.h"
#include "storage/FolderChanges.h"

#include <vector>

namespace tessarine {

// The comparison's changed folders as the sheet lists them: the folder's name over its path, its
// size before and after ("under 12 KB" or "—" where a scan has no figure), the change coloured as
// the totals' are, and its larger size as a share of the largest folder listed, for the bar.
std::vector<ChangeRow> folderChangeRows(const FolderComparison& comparison);

} // namespace tessarine
