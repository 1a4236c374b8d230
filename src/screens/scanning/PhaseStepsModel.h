#pragma once

#include "design/RowListModel.h"
#include "screens/scanning/ScanPhaseDisplay.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The five dots of the phase-steps row for the bound phase.
class PhaseStepsModel : public RowListModel<PhaseStepsModel, std::array<PhaseStep, 5>> {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::ScanPhase phase READ phase WRITE setPhase NOTIFY phaseChanged)

public:
    enum Role { LabelRole = Qt::UserRole + 1, CompletedRole, CurrentRole };
    Q_ENUM(Role)

    explicit PhaseStepsModel(QObject* parent = nullptr);

    ScanPhase phase() const { return m_phase; }
    void setPhase(ScanPhase phase);

signals:
    void phaseChanged();

private:
    QVariant rowData(const PhaseStep& step, int role) const override;

    ScanPhase m_phase = ScanPhase::initializing;
};

} // namespace tessarine
