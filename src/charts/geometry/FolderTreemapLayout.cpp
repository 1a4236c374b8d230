#include "charts/geometry/FolderTreemapLayout.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace tessarine {

namespace {

constexpr double minimumCellThickness = 2;
constexpr qint64 folderColorCycle = 10;

// The room an entry takes: its size, where a negative one (a damaged stored tree) takes none.
// Sizes are shared out in floating point, where sizes near 2^63 add up without wrapping or
// saturating, so that every cell keeps its proportion.
double roomOf(const TreemapEntry& entry) {
    return static_cast<double>(std::max<qint64>(entry.size, 0));
}

// How many leading entries of remaining form the next strip in the free rectangle: entries join
// while the strip's worst aspect ratio does not get worse. The worst ratio of a strip is that of
// its largest or its smallest cell, so those two are all that is tracked.
qsizetype rowLength(std::span<const TreemapEntry> remaining, const QRectF& free, double total) {
    const bool wide = free.height() <= free.width();
    const double side = wide ? free.height() : free.width();
    const double across = wide ? free.width() : free.height();
    constexpr double infinity = std::numeric_limits<double>::infinity();

    double worst = infinity;
    double sum = 0;
    double smallest = infinity;
    double largest = -infinity;
    qsizetype length = 0;
    for (const TreemapEntry& entry : remaining) {
        const double size = roomOf(entry);
        const double candidateSum = sum + size;
        const double candidateSmallest = std::min(smallest, size);
        const double candidateLargest = std::max(largest, size);
        const double thickness = candidateSum / total * across;
        const double shortest = side * (candidateSmallest / candidateSum);
        const double longest = side * (candidateLargest / candidateSum);
        const double ratio = (thickness <= 0 || shortest <= 0)
                                 ? infinity
                                 : std::max({longest / thickness, thickness / longest,
                                             shortest / thickness, thickness / shortest});
        if (length > 0 && ratio > worst)
            break;
        ++length;
        worst = ratio;
        sum = candidateSum;
        smallest = candidateSmallest;
        largest = candidateLargest;
    }
    return length;
}

double roomOf(std::span<const TreemapEntry> entries) {
    return std::accumulate(
        entries.begin(), entries.end(), 0.0,
        [](double sum, const TreemapEntry& entry) { return sum + roomOf(entry); });
}

} // namespace

FolderInfo filesFolderOf(const FolderInfo& folder) {
    FolderInfo files;
    files.location = FolderPath(folder.location, QStringLiteral("__files__"));
    files.name = QStringLiteral("Files");
    files.totalSize = folder.directFilesSize();
    files.fileCount = folder.directFileCount();
    files.depth = folder.depth + 1;
    files.color = FolderColor::cyan;
    return files;
}

TreemapLevel buildTreemapItems(const FolderInfo& folder, const QRectF& bounds,
                               qint64 baseColorIndex) {
    TreemapLevel level;
    if (folder.childFolders.empty()) {
        level.items.push_back({&folder, bounds, false, baseColorIndex});
        return level;
    }

    std::vector<TreemapEntry> entries;
    entries.reserve(folder.childFolders.size() + 1);
    for (const FolderInfo& child : folder.childFolders)
        entries.push_back({&child, child.totalSize, false});
    auto files = std::make_unique<const FolderInfo>(filesFolderOf(folder));
    if (files->totalSize > 0) {
        entries.push_back({files.get(), files->totalSize, true});
        level.files = std::move(files);
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const TreemapEntry& a, const TreemapEntry& b) { return a.size > b.size; });
    level.items = layoutTreemapItems(entries, bounds, baseColorIndex);
    return level;
}

std::vector<TreemapItem> layoutTreemapItems(std::span<const TreemapEntry> entries,
                                            const QRectF& bounds, qint64 baseColorIndex) {
    std::vector<TreemapItem> items;
    const double total = roomOf(entries);
    if (total <= 0)
        return items;

    items.reserve(entries.size());
    QRectF free = bounds;
    qint64 color = baseColorIndex;
    while (!entries.empty()) {
        const auto strip = entries.first(rowLength(entries, free, total));
        entries = entries.subspan(strip.size());
        const double stripSize = roomOf(strip);
        const double share = stripSize / total;

        const bool band = free.width() < free.height();
        QRectF stripRect;
        if (band) {
            const double thickness = share * bounds.height();
            stripRect = QRectF(free.x(), free.y(), free.width(), thickness);
            free = QRectF(free.x(), free.y() + thickness, free.width(),
                          std::max(free.height() - thickness, 0.0));
        } else {
            const double thickness = share * bounds.width();
            stripRect = QRectF(free.x(), free.y(), thickness, free.height());
            free = QRectF(free.x() + thickness, free.y(), std::max(free.width() - thickness, 0.0),
                          free.height());
        }

        double offset = 0;
        for (const TreemapEntry& entry : strip) {
            // A strip of empty folders has no share to split; its cells keep the minimum.
            const double fraction = stripSize > 0 ? roomOf(entry) / stripSize : 0.0;
            QRectF rect;
            if (band) {
                const double extent = fraction * stripRect.width();
                rect = QRectF(stripRect.x() + offset, stripRect.y(),
                              std::max(extent, minimumCellThickness), stripRect.height());
                offset += extent;
            } else {
                const double extent = fraction * stripRect.height();
                rect = QRectF(stripRect.x(), stripRect.y() + offset, stripRect.width(),
                              std::max(extent, minimumCellThickness));
                offset += extent;
            }
            // The files item keeps its own colour and takes no step, so folder colours run on.
            items.push_back(
                {entry.folder, rect, entry.isFiles, entry.isFiles ? filesColorIndex : color});
            if (!entry.isFiles)
                color = (color + 1) % folderColorCycle;
        }
    }
    return items;
}

} // namespace tessarine
