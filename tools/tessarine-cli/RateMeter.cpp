#include "RateMeter.h"

namespace tessarine::cli {

namespace {

// A rate taken over the first few polls swings wildly and would only distract.
constexpr qint64 settleMilliseconds = 500;

} // namespace

std::optional<double> RateMeter::rate(int phase, qint64 count, const QDateTime& now) {
    if (phase != m_phase) {
        m_phase = phase;
        m_phaseSeen = now;
        m_countWhenSeen = count;
    }
    const qint64 elapsed = m_phaseSeen.msecsTo(now);
    if (elapsed < settleMilliseconds)
        return std::nullopt;
    return double(count - m_countWhenSeen) * 1000.0 / double(elapsed);
}

} // namespace tessarine::cli
