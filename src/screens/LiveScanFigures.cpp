#include "screens/LiveScanFigures.h"

#include "screens/ScanFigures.h"

namespace tessarine {

LiveScanFigures::LiveScanFigures(QObject* parent)
    : QObject(parent) {
    update();
}

void LiveScanFigures::setProgress(const ProgressHandle& progress) {
    if (progress == m_progress)
        return;
    m_progress = progress;
    update();
    emit progressChanged();
}

void LiveScanFigures::tick() {
    if (!m_progress.valid())
        return;
    m_rates.tick(*m_progress.progress());
    update();
}

void LiveScanFigures::update() {
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const std::optional<ScanProgress>& progress = m_progress.progress();
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
