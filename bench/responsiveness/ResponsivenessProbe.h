#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace tessarine {

class AppState;

// Watches the interface thread while scans run: the longest wait between two progress updates
// the state hands to the screen, and the longest time a short repeating timer fired late, which is
// how long the event loop could not react to the user (both over every scan so far), and how long
// the last scan took.
class ResponsivenessProbe : public QObject {
    Q_OBJECT

public:
    explicit ResponsivenessProbe(AppState& state);

    // Scans the folder and returns when the scan has ended, one way or the other, and the screen
    // that follows it is up.
    void scan(const QString& folderPath);

    qint64 longestProgressGapMs() const { return m_longestGapNs / 1'000'000; }
    qint64 longestStallMs() const { return m_longestStallNs / 1'000'000; }
    int progressUpdates() const { return m_updates; }
    // From the start of the last scan until its result was in the state (or it failed).
    double seconds() const { return double(m_scanNs) / 1e9; }
    // From then until the event loop was free again: building the screen that shows the result.
    double followingScreenSeconds() const { return double(m_followingScreenNs) / 1e9; }

private:
    void progressArrived();
    void tick();

    AppState& m_state;
    QElapsedTimer m_clock;
    QTimer m_ticker;
    qint64 m_lastUpdateNs = 0;
    qint64 m_lastTickNs = 0;
    qint64 m_longestGapNs = 0;
    qint64 m_longestStallNs = 0;
    qint64 m_scanNs = 0;
    qint64 m_followingScreenNs = 0;
    int m_updates = 0;
};

} // namespace tessarine
