#include "ScanComparison.h"

#include "model/FileCategory.h"
#include "model/Format.h"

#include <QSet>

#include <algorithm>
#include <cstdlib>
#include <map>

namespace tessarine {

namespace {

QString plainInteger(qint64 value) {
    return QString::number(value);
}

ChangeRow totalRow(const QString& title, qint64 before, qint64 after, QString (*format)(qint64)) {
    ChangeRow row;
    row.title = title;
    row.beforeText = format(before);
    row.afterText = format(after);
    describeChange(row, after - before, format);
    return row;
}

std::vector<ChangeRow> categoryChanges(const AnalysisResult& before, const AnalysisResult& after) {
    std::map<FileCategory, std::pair<qint64, qint64>> sizes;
    for (const CategoryStats& stats : before.categoryBreakdown)
        sizes[stats.category].first += stats.totalSize;
    for (const CategoryStats& stats : after.categoryBreakdown)
        sizes[stats.category].second += stats.totalSize;

    std::vector<std::pair<qint64, ChangeRow>> changes;
    // In the categories' own order, so that equal changes keep a fixed order.
    for (FileCategory category : allFileCategories()) {
        const auto [was, is] = sizes[category];
        if (was == is)
            continue;
        ChangeRow row;
        row.title = rawValue(category);
        row.beforeText = format::byteCount(was);
        row.afterText = format::byteCount(is);
        row.icon = iconName(category);
        row.iconColor = colorName(category);
        describeChange(row, is - was, format::byteCount);
        changes.emplace_back(std::abs(is - was), std::move(row));
    }
    std::stable_sort(changes.begin(), changes.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<ChangeRow> rows;
    for (auto& change : changes)
        rows.push_back(std::move(change.second));
    return rows;
}

// The files of `scan` whose path `other` does not list, each with its size signed as the change
// it makes: positive for a file that appeared, negative for one that disappeared.
void collectUnmatched(const AnalysisResult& scan, const AnalysisResult& other, int sign,
                      std::vector<std::pair<qint64, ChangeRow>>& into) {
    QSet<QString> otherPaths;
    for (const FileInfo& file : other.largestFiles)
        otherPaths.insert(file.path);
    for (const FileInfo& file : scan.largestFiles) {
        if (otherPaths.contains(file.path))
            continue;
        const QString size = format::byteCount(file.size);
        ChangeRow row;
        row.title = file.name;
        row.detail = file.path;
        row.beforeText = sign > 0 ? format::missing() : size;
        row.afterText = sign > 0 ? size : format::missing();
        row.icon = iconName(file.category);
        row.iconColor = colorName(file.category);
        describeChange(row, sign * file.size, format::byteCount);
        into.emplace_back(file.size, std::move(row));
    }
}

std::vector<ChangeRow> fileChanges(const AnalysisResult& before, const AnalysisResult& after) {
    std::vector<std::pair<qint64, ChangeRow>> changes;
    collectUnmatched(after, before, +1, changes);
    collectUnmatched(before, after, -1, changes);
    std::stable_sort(changes.begin(), changes.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<ChangeRow> rows;
    for (std::size_t i = 0; i < changes.size() && i < comparedFileLimit; ++i)
        rows.push_back(std::move(changes[i].second));
    return rows;
}

} // namespace

void describeChange(ChangeRow& row, qint64 difference, QString (*format)(qint64)) {
    if (difference > 0) {
        row.changeText = QLatin1Char('+') + format(difference);
        row.symbol = QStringLiteral("arrow.up");
        row.color = QStringLiteral("red");
    } else if (difference < 0) {
        row.changeText = format(difference);
        row.symbol = QStringLiteral("arrow.down");
        row.color = QStringLiteral("green");
    } else {
        row.changeText = format::missing();
        row.symbol.clear();
        row.color = QStringLiteral("secondary");
    }
}

// A difference in what was counted explains a difference in the figures: a scan that includes
// hidden items finds more than one of the same unchanged folder that leaves them out.
QString optionsNote(const ScanOptions& before, const ScanOptions& after) {
    if (before == after)
        return {};
    const auto described = [](const ScanOptions& options) {
        return options.isDefault() ? QStringLiteral("none") : options.labels().join(u", ");
    };
    return QStringLiteral("Scanned with different options (Before: %1; After: %2), so the figures "
                          "differ for that reason too.")
        .arg(described(before), described(after));
}

ScanComparison compareScans(const AnalysisResult& first, const AnalysisResult& second) {
    const bool firstIsEarlier = first.scanDate < second.scanDate;
    ScanComparison comparison;
    comparison.before = firstIsEarlier ? first : second;
    comparison.after = firstIsEarlier ? second : first;
    const AnalysisResult& before = comparison.before;
    const AnalysisResult& after = comparison.after;
    comparison.totals = {
        totalRow(QStringLiteral("Total Size"), before.totalSize, after.totalSize,
                 format::byteCount),
        totalRow(QStringLiteral("Files"), before.fileCount, after.fileCount, format::count),
        totalRow(QStringLiteral("Folders"), before.folderCount, after.folderCount, format::count),
        totalRow(QStringLiteral("Max Depth"), before.maxDepth, after.maxDepth, plainInteger),
    };
    comparison.categories = categoryChanges(before, after);
    comparison.files = fileChanges(before, after);
    comparison.optionsNote = optionsNote(before.scanOptions, after.scanOptions);
    return comparison;
}

} // namespace tessarine
