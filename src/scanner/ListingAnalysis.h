#pragma once

#include "scanner/DirectoryListing.h"
#include "scanner/ScanAggregator.h"

#include <QString>

#include <atomic>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tessarine {

class FolderSizeTally;

// The analysis pass of a scan: folds every item of a finished listing into an aggregator, in
// pre-order listing order (a folder, then its contents), exactly as a sequential recursive walk
// would. It works only from the metadata that discovery stored beside each item and never goes
// back to the file system, so files that vanish meanwhile do not disturb it. Symbolic links and
// items whose metadata could not be read are passed over.
class ListingAnalysis {
public:
    // Called after every `interval` analysed items with the path of the last one.
    using IntervalCallback = std::function<void(const QString& itemPath)>;

    ListingAnalysis(ScanAggregator& aggregator, const std::atomic<bool>& cancelled, qint64 interval,
                    IntervalCallback onInterval);

    // Also sums every folder's size into `tally` as the items pass by.
    void tallyFolderSizes(FolderSizeTally& tally) { m_folderSizes = &tally; }

    // Returns false, leaving the aggregator part-filled, when `cancelled` turned true.
    bool fold(const DirectoryListing& listing);

    // One item, for a reader that meets a listing's items one by one in the order fold() visits
    // them: `depth` is 1 directly inside the root, `folderPath` the path of the folder holding the
    // item, in file-system bytes. Returns false for an item the analysis passes over.
    bool foldItem(const ListedEntry& entry, qint64 depth, const QByteArray& folderPath);

private:
    void foldFile(const ListedEntry& entry, qint64 depth, const QByteArray& folderPath);
    ExtensionTally& tallyFor(QByteArrayView rawExtension);

    ScanAggregator& m_aggregator;
    const std::atomic<bool>& m_cancelled;
    const qint64 m_interval;
    IntervalCallback m_onInterval;
    FolderSizeTally* m_folderSizes = nullptr;
    // Raw extension bytes (as named on disk) to their tally: each distinct spelling is decoded,
    // lowercased and categorised once, not once per file. Looked up by a view of the name, so a
    // file costs one short hash and no copy.
    struct ExtensionHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view bytes) const noexcept;
    };
    std::unordered_map<std::string, ExtensionTally*, ExtensionHash, std::equal_to<>> m_tallies;
};

} // namespace tessarine
