#include "ResponsivenessProbe.h"

#include "app/AppState.h"

#include <QEventLoop>

#include <algorithm>

namespace tessarine {

namespace {

// Short enough that any stall worth noticing shows up as lateness of this timer.
constexpr int tickIntervalMs = 5;

} // namespace

ResponsivenessProbe::ResponsivenessProbe(AppState& state)
    : m_state(state) {
    m_ticker.setInterval(tickIntervalMs);
    m_ticker.setTimerType(Qt::PreciseTimer);
    connect(&m_ticker, &QTimer::timeout, this, &ResponsivenessProbe::tick);
    connect(&m_state, &AppState::scanProgressChanged, this, &ResponsivenessProbe::progressArrived);
}

void ResponsivenessProbe::scan(const QString& folderPath) {
    QEventLoop untilScanEnds;
    connect(&m_state, &AppState::isScanningChanged, &untilScanEnds, [&] {
        if (m_state.isScanning())
            return;
        // The state switches to the dashboard right after, within this same event: reading the
        // clock and stopping the ticker only once the loop returns would count the dashboard's
        // construction, which is measured on its own, as scan time and maybe as a stall.
        m_scanNs = m_clock.nsecsElapsed();
        m_ticker.stop();
        untilScanEnds.quit();
    });
    m_clock.start();
    m_lastTickNs = 0;
    m_ticker.start();
    m_state.startScan(folderPath);
    m_lastUpdateNs = m_clock.nsecsElapsed();
    untilScanEnds.exec();
    m_followingScreenNs = m_clock.nsecsElapsed() - m_scanNs;
}

void ResponsivenessProbe::progressArrived() {
    // Clearing the snapshot when the scan starts is not news from the scanner.
    if (!m_state.hasScanProgress())
        return;
    const qint64 now = m_clock.nsecsElapsed();
    m_longestGapNs = std::max(m_longestGapNs, now - m_lastUpdateNs);
    m_lastUpdateNs = now;
    ++m_updates;
}

void ResponsivenessProbe::tick() {
    const qint64 now = m_clock.nsecsElapsed();
    m_longestStallNs =
        std::max(m_longestStallNs, now - m_lastTickNs - qint64(tickIntervalMs) * 1'000'000);
    m_lastTickNs = now;
}

} // namespace tessarine
