#pragma once

#include "model/Records.h"
#include "storage/FolderChanges.h"

#include <QByteArray>
#include <QString>

namespace tessarine::cli {

// Two stored scans of `history compare`, the earlier first, with their folder changes.
struct StoredComparison {
    AnalysisResult before;
    AnalysisResult after;
    FolderComparison folders;
};

// For a person: the two scans, the change in the totals, then one line per changed folder
// (change, path, size before and after), or the line that says why no folders are compared.
QString comparisonText(const StoredComparison& comparison);

// For scripts: {"after", "before", "change", "folderCutoff", "folderOutcome", "folders"}, each
// folder as {"after", "before", "change", "path"} with null for a size not known.
QByteArray comparisonJson(const StoredComparison& comparison);

} // namespace tessarine::cli
