#include "screens/scanning/LiveScanFigures.h"

#include "screens/scanning/ScanFigures.h"

namespace tessarine {

LiveScanFigures::LiveScanFigures(QObject* parent)
    : QObject(parent) {
    update();
}

void LiveScanFigures::setProgress(const ScanProgress& progress) {
    m_latest = progress;
    update();
}

void LiveScanFigures::setHasProgress(bool hasProgress) {
    m_hasProgress = hasProgress;
    update();
}

void LiveScanFigures::tick() {
    if (!m_progress)
        return;
    m_rates.tick(*m_progress);
    update();
}

void LiveScanFigures::update() {
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (m_hasProgress)
        m_progress = m_latest;
    else
        m_progress.reset();
    const std::optional<ScanProgress>& progress = m_progress;
    ScanStatus status = scanStatus(progress, m_rates, now);
    const std::optional<double> fraction =
        progress ? tessarine::completedFraction(*progress) : std::nullopt;
    // Before the first snapshot the figures of an empty one still give the placeholder cards
    // their titles and colours.
    const ScanProgress shown = progress.value_or(ScanProgress{});
    m_performance.setFigures(
        performanceFigures(shown, m_rates.filesPerSecond(), m_rates.bytesPerSecond()));
    m_statistics.setFigures(statisticsFigures(shown, now));
    if (status == m_status && fraction == m_completedFraction)
        return;
    m_status = std::move(status);
    m_completedFraction = fraction;
    emit figuresChanged();
}

} // namespace tessarine
