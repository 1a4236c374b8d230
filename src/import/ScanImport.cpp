#include "import/ScanImport.h"

#include "import/ImportInput.h"
#include "import/NcduListingReader.h"
#include "model/Json.h"
#include "model/PathBytes.h"
#include "model/PathNames.h"
#include "scanner/FileSystemScanner.h"
#include "scanner/ListingAnalysis.h"
#include "scanner/ScanAggregator.h"
#include "tree/FolderTreeAssembly.h"

#include <QDir>

#include <atomic>

namespace tessarine {

namespace {

ImportError malformed(const ByteJsonFailure& failure) {
    return {ImportError::Kind::malformed,
            QStringLiteral("at byte %1, %2").arg(failure.offset).arg(failure.problem)};
}

// An export from another machine names a folder there: it is cleaned, never resolved here.
QString rootPathOf(const DirectoryListing& listing) {
    return QDir::cleanPath(pathFromBytes(listing.rootPath()));
}

// A stored result must read back, and JSON readers stop some five hundred levels of folders
// down: below that the tree keeps each folder's totals but not its sub-folders. Returns whether
// anything was cut.
bool cutBelowReadableDepth(FolderInfo& root) {
    bool cut = false;
    std::vector<FolderInfo*> pending{&root};
    while (!pending.empty()) {
        FolderInfo* folder = pending.back();
        pending.pop_back();
        if (folder->depth - root.depth >= json::deepestReadableFolderLevel) {
            cut |= !folder->childFolders.empty();
            folder->childFolders.clear();
            continue;
        }
        for (FolderInfo& child : folder->childFolders)
            pending.push_back(&child);
    }
    return cut;
}

ImportOutcome importNcdu(QByteArrayView bytes, ImportSource source,
                         const std::function<void()>& onRead) {
    const std::atomic<bool> never{false};
    ScanAggregator aggregator;
    ListingAnalysis analysis(aggregator, never, FileSystemScanner::progressUpdateInterval, {});
    NcduListingReader reader(bytes, analysis);
    DirectoryListing listing;
    try {
        listing = reader.read();
    } catch (const ByteJsonFailure& failure) {
        return malformed(failure);
    }
    if (onRead)
        onRead();
    const QString rootPath = rootPathOf(listing);
    if (listing.isEmpty())
        return ImportError{ImportError::Kind::empty, rootPath};

    FolderTreeAssembly assembly(never, treeFolderCount(listing), [](qint64, const QString&) {});

    AnalysisResult result = aggregator.finish();
    result.rootPath = rootPath;
    result.rootName = lastPathComponent(rootPath);
    FolderInfo tree = *assembly.assemble(listing, rootPath);
    if (cutBelowReadableDepth(tree))
        source.unknownFields << QStringLiteral("folderTree");
    result.folderTree = SharedFolderTree(std::move(tree));
    const NcduExportFacts& facts = reader.facts();
    source.program = facts.program;
    result.scanDate = facts.exportDate.value_or(source.importDate);
    if (!facts.exportDate)
        source.unknownFields << QStringLiteral("scanDate");
    if (!facts.hasModificationTimes)
        source.unknownFields << QStringLiteral("modificationDate");
    source.unknownFields << QStringLiteral("scanDuration");
    result.importSource = std::move(source);
    return result;
}

ImportOutcome importResult(QByteArrayView bytes, ImportSource source) {
    QString problem;
    std::optional<AnalysisResult> decoded =
        json::decodeResult(QByteArray::fromRawData(bytes.data(), bytes.size()), &problem);
    if (!decoded)
        return ImportError{ImportError::Kind::malformed, problem};
    // A new identity: the same file imported twice, or a result of this very history imported
    // back, must not replace the scan it was copied from.
    decoded->id = makeRecordId();
    if (decoded->importSource)
        source = *decoded->importSource; // passed on through another machine: keeps its origin
    else
        source.program = QStringLiteral("Tessarine");
    decoded->importSource = std::move(source);
    return std::move(*decoded);
}

} // namespace

ImportOutcome importScan(QByteArrayView bytes, const QString& sourceName,
                         const std::function<void()>& onRead) {
    ImportSource source;
    source.fileName = sourceName;
    // Whole seconds, as a stored result keeps its dates.
    source.importDate = QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch(), Qt::UTC);
    const QByteArrayView trimmed = bytes.trimmed();
    if (trimmed.startsWith('['))
        return importNcdu(bytes, std::move(source), onRead);
    if (trimmed.startsWith('{'))
        return importResult(bytes, std::move(source));
    return ImportError{ImportError::Kind::notAScan, sourceName};
}

ImportOutcome importScanFile(const QString& path) {
    auto opened = ImportInput::open(path);
    if (auto* error = std::get_if<ImportError>(&opened))
        return std::move(*error);
    auto& input = std::get<std::unique_ptr<ImportInput>>(opened);
    // All the result needs of the export is taken as it is read: its pages go before the tree is
    // assembled.
    const QString sourceName = input->sourceName();
    return importScan(input->bytes(), sourceName, [&input] { input.reset(); });
}

} // namespace tessarine
