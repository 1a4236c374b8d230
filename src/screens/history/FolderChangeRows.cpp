#include "FolderChangeRows.h"

#include "ScanComparison.h"
#include "model/Format.h"
#include "model/PathNames.h"

#include <algorithm>

namespace tessarine {

std::vector<ChangeRow> folderChangeRows(const FolderComparison& comparison) {
    const QString unknown = unknownFolderSizeText(comparison.cutoff);
    const auto sizeText = [&](const std::optional<qint64>& size) {
        return size ? format::byteCount(*size) : unknown;
    };
    const auto largerSide = [](const FolderChange& folder) {
        return std::max(folder.before.value_or(0), folder.after.value_or(0));
    };
    qint64 largest = 1;
    for (const FolderChange& folder : comparison.changes)
        largest = std::max(largest, largerSide(folder));

    std::vector<ChangeRow> rows;
    rows.reserve(comparison.changes.size());
    for (const FolderChange& folder : comparison.changes) {
        ChangeRow row;
        row.title = lastPathComponent(folder.path);
        row.detail = folder.path;
        row.beforeText = sizeText(folder.before);
        row.afterText = sizeText(folder.after);
        row.icon = QStringLiteral("folder.fill");
        row.iconColor = QStringLiteral("blue");
        row.share = double(largerSide(folder)) / double(largest);
        describeChange(row, folder.change, format::byteCount);
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace tessarine
