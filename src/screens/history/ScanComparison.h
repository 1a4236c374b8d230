#pragma once

#include "ChangeRow.h"
#include "model/Records.h"

#include <vector>

namespace tessarine {

// Two stored scans side by side, read from what the history files hold (no rescan).
struct ScanComparison {
    AnalysisResult before;
    AnalysisResult after;
    // Total size, files, folders and depth, in that order.
    std::vector<ChangeRow> totals;
    // The categories whose size changed, largest change first.
    std::vector<ChangeRow> categories;
    // The largest files found in only one of the scans, largest first.
    std::vector<ChangeRow> files;
    // Says how the two counted when they were made with different options; empty otherwise.
    QString optionsNote;
};

// The most files the comparison lists: the scans keep only their largest files, so the list is a
// pointer to what to look at, not an inventory.
constexpr std::size_t comparedFileLimit = 10;

// Compares two scans. "Before" is the earlier by scan date; on equal dates it is `second`, the
// later of the two in the history's newest-first order.
ScanComparison compareScans(const AnalysisResult& first, const AnalysisResult& second);

// The difference after minus before as the sheet shows it: "+" and a red up arrow for growth,
// the negative value and a green down arrow for shrinkage, "—" for none.
void describeChange(ChangeRow& row, qint64 difference, QString (*format)(qint64));

} // namespace tessarine
