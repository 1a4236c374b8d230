#include "model/Records.h"

#include "model/Format.h"
#include "model/PathNames.h"
#include "model/SaturatingSum.h"

#include <algorithm>
#include <numeric>

namespace tessarine {

QDateTime distantPast() {
    return QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC);
}

bool isKnownDate(const QDateTime& date) {
    return date.isValid() && date > distantPast();
}

QString ImportSource::label() const {
    return QStringLiteral("Imported from %1 (%2), %3")
        .arg(program, fileName, format::absoluteDate(importDate));
}

QDateTime ImportSource::knownScanDate(const QDateTime& scanDate,
                                      const std::optional<ImportSource>& source) {
    return source && source->unknownFields.contains(u"scanDate") ? QDateTime() : scanDate;
}

QString ExtensionStats::displayName() const {
    return ext.isEmpty() ? QStringLiteral("No Extension") : QLatin1Char('.') + ext;
}

std::vector<const FolderInfo*> FolderInfo::flattened() const {
    std::vector<const FolderInfo*> order;
    std::vector<const FolderInfo*> pending{this};
    while (!pending.empty()) {
        const FolderInfo* folder = pending.back();
        pending.pop_back();
        order.push_back(folder);
        // Pushed in reverse so that the first child is taken next.
        for (auto child = folder->childFolders.rbegin(); child != folder->childFolders.rend();
             ++child)
            pending.push_back(&*child);
    }
    return order;
}

namespace {

// A folder's figure less its sub-folders' own. A total held at the largest value may be less than
// its children together; the folder's own part is then unknown, and taken as none rather than as
// a negative amount.
qint64 ownPart(const FolderInfo& folder, qint64 FolderInfo::*figure) {
    return std::max<qint64>(
        std::accumulate(folder.childFolders.begin(), folder.childFolders.end(), folder.*figure,
                        [figure](qint64 rest, const FolderInfo& child) {
                            return saturatingAdd(rest, -std::max<qint64>(child.*figure, 0));
                        }),
        0);
}

} // namespace

qint64 FolderInfo::directFilesSize() const {
    return ownPart(*this, &FolderInfo::totalSize);
}

qint64 FolderInfo::directFileCount() const {
    return ownPart(*this, &FolderInfo::fileCount);
}

QList<ExtensionStats> AnalysisResult::sortedExtensions() const {
    QList<ExtensionStats> sorted = extensionStats.values();
    // Ties are broken by name so that the order does not change between runs.
    std::sort(sorted.begin(), sorted.end(), [](const ExtensionStats& a, const ExtensionStats& b) {
        return a.totalSize != b.totalSize ? a.totalSize > b.totalSize : a.ext < b.ext;
    });
    return sorted;
}

std::vector<std::pair<qint64, DepthStats>> AnalysisResult::sortedDepths() const {
    return {depthDistribution.begin(), depthDistribution.end()};
}

QString AnalysisResult::formattedDuration() const {
    if (importSource && importSource->unknownFields.contains(u"scanDuration"))
        return format::missing();
    return format::duration(scanDuration);
}

QString AnalysisResult::folderName() const {
    return scannedFolderName(rootPath);
}

} // namespace tessarine
