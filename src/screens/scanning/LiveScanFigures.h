#pragma once

#include "model/ScanProgress.h"
#include "screens/common/FigureListModel.h"
#include "screens/scanning/ScanRateMeter.h"
#include "screens/scanning/ScanStatus.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Everything the scanning screen shows of the bound progress: the status panel's texts, the
// performance cards, the statistics boxes and the share done. The screen's one-second timer calls
// tick, which measures the rates and lets the clock-based texts move on between snapshots.
class LiveScanFigures : public QObject {
    Q_OBJECT
    QML_ELEMENT
    // The snapshot shown and whether there is one yet; the application state gives both.
    Q_PROPERTY(tessarine::ScanProgress progress READ progress WRITE setProgress)
    Q_PROPERTY(bool hasProgress READ hasProgress WRITE setHasProgress)
    Q_PROPERTY(tessarine::ScanStatus status READ status NOTIFY figuresChanged)
    Q_PROPERTY(tessarine::FigureListModel* performance READ performance CONSTANT)
    Q_PROPERTY(tessarine::FigureListModel* statistics READ statistics CONSTANT)
    Q_PROPERTY(bool hasEstimate READ hasEstimate NOTIFY figuresChanged)
    Q_PROPERTY(double completedFraction READ completedFraction NOTIFY figuresChanged)

public:
    explicit LiveScanFigures(QObject* parent = nullptr);

    const ScanProgress& progress() const { return m_latest; }
    void setProgress(const ScanProgress& progress);
    bool hasProgress() const { return m_hasProgress; }
    void setHasProgress(bool hasProgress);
    const ScanStatus& status() const { return m_status; }
    FigureListModel* performance() { return &m_performance; }
    FigureListModel* statistics() { return &m_statistics; }
    bool hasEstimate() const { return m_completedFraction.has_value(); }
    double completedFraction() const { return m_completedFraction.value_or(0); }

    // One period of the screen's timer. Without a snapshot there is nothing to measure.
    Q_INVOKABLE void tick();

signals:
    void figuresChanged();

private:
    void update();

    ScanProgress m_latest;
    bool m_hasProgress = false;
    std::optional<ScanProgress> m_progress;
    ScanRateMeter m_rates;
    ScanStatus m_status;
    std::optional<double> m_completedFraction;
    FigureListModel m_performance;
    FigureListModel m_statistics;
};

} // namespace tessarine
