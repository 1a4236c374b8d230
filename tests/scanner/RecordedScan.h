#pragma once

#include "scanner/FileSystemScanner.h"

#include <QList>

#include <functional>

namespace tessarine::testing {

// The outcome of one scan together with every snapshot it published, in order.
struct RecordedScan {
    ScanOutcome outcome;
    QList<ScanProgress> snapshots;
    std::optional<FolderSizes> folderSizes;

    const AnalysisResult& result() const { return std::get<AnalysisResult>(outcome); }
    const ScanError& error() const { return std::get<ScanError>(outcome); }
    // The phases in the order they appeared, each run of equal phases listed once.
    QList<ScanPhase> phases() const;
    QList<ScanProgress> snapshotsIn(ScanPhase phase) const;
};

// Runs one scan of `path`. `react`, when given, sees each snapshot as it is published, on the
// scanning thread, and may act on the scanner (cancel it) or on the tree being scanned.
using SnapshotReaction = std::function<void(FileSystemScanner&, const ScanProgress&)>;
RecordedScan recordScan(const QString& path, const SnapshotReaction& react = {});

// The result with everything that differs between two scans of the same tree cleared: record
// identities, the scan date and its duration.
AnalysisResult withoutIdentities(AnalysisResult result);

} // namespace tessarine::testing
