#pragma once

#include "model/ScanProgress.h"

#include <QString>

#include <array>
#include <optional>

// How each scan phase is presented on the scanning screen.
namespace tessarine {

// The symbol in the middle of the scanner ring; no phase (no progress yet) has one as well.
QString phaseSymbol(std::optional<ScanPhase> phase);

// The caption under the phase title, e.g. "Reading file metadata".
QString phaseDescription(ScanPhase phase);

// The label under a step dot, e.g. "Analyze".
QString phaseShortLabel(ScanPhase phase);

// One dot of the phase-steps row.
struct PhaseStep {
    ScanPhase phase;
    bool completed;
    bool current;

    bool operator==(const PhaseStep&) const = default;
};

// The five steps from initializing to finalizing, seen from the scan's current phase. A cancelled
// or failed scan completes none, so the row never suggests work that was thrown away.
std::array<PhaseStep, 5> phaseSteps(ScanPhase current);

} // namespace tessarine
