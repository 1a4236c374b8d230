#pragma once

#include <QDateTime>

#include <optional>

namespace tessarine::cli {

// Items per second since the current phase began. Counters start again from zero when a scan
// moves from discovery to analysis, so a rate over the whole run would be meaningless.
class RateMeter {
public:
    // None until the phase has run long enough for the figure to settle.
    std::optional<double> rate(int phase, qint64 count, const QDateTime& now);

private:
    int m_phase = -1;
    QDateTime m_phaseSeen;
    qint64 m_countWhenSeen = 0;
};

} // namespace tessarine::cli
