#include "screens/scanning/ScanPhaseDisplay.h"

namespace tessarine {

QString phaseSymbol(std::optional<ScanPhase> phase) {
    const QString searching = QStringLiteral("doc.text.magnifyingglass");
    if (!phase)
        return searching;
    switch (*phase) {
    case ScanPhase::initializing:
        return QStringLiteral("arrow.clockwise");
    case ScanPhase::analyzing:
        return QStringLiteral("chart.bar.doc.horizontal");
    case ScanPhase::categorizing:
        return QStringLiteral("square.grid.2x2");
    case ScanPhase::finalizing:
        return QStringLiteral("checkmark.circle");
    case ScanPhase::scanning:
    case ScanPhase::complete:
    case ScanPhase::cancelled:
    case ScanPhase::error:
        break;
    }
    return searching;
}

QString phaseDescription(ScanPhase phase) {
    switch (phase) {
    case ScanPhase::initializing:
        return QStringLiteral("Preparing to scan directory");
    case ScanPhase::scanning:
        return QStringLiteral("Finding all files and folders");
    case ScanPhase::analyzing:
        return QStringLiteral("Reading file metadata");
    case ScanPhase::categorizing:
        return QStringLiteral("Organizing by category");
    case ScanPhase::finalizing:
        return QStringLiteral("Generating insights");
    case ScanPhase::complete:
        return QStringLiteral("Scan complete");
    case ScanPhase::cancelled:
        return QStringLiteral("Scan cancelled");
    case ScanPhase::error:
        return QStringLiteral("Scan failed");
    }
    return {};
}

QString phaseShortLabel(ScanPhase phase) {
    switch (phase) {
    case ScanPhase::initializing:
        return QStringLiteral("Init");
    case ScanPhase::scanning:
        return QStringLiteral("Scan");
    case ScanPhase::analyzing:
        return QStringLiteral("Analyze");
    case ScanPhase::categorizing:
        return QStringLiteral("Sort");
    case ScanPhase::finalizing:
        return QStringLiteral("Done");
    case ScanPhase::complete:
        return QStringLiteral("Complete");
    case ScanPhase::cancelled:
        return QStringLiteral("Cancelled");
    case ScanPhase::error:
        return QStringLiteral("Error");
    }
    return {};
}

std::array<PhaseStep, 5> phaseSteps(ScanPhase current) {
    const bool abandoned = current == ScanPhase::cancelled || current == ScanPhase::error;
    std::array<PhaseStep, 5> steps{};
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const auto phase = static_cast<ScanPhase>(i);
        steps[i] = {phase, !abandoned && current > phase, current == phase};
    }
    return steps;
}

} // namespace tessarine
