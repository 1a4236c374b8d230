#pragma once

#include "screens/scanning/ScanPhaseDisplay.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The five dots of the phase-steps row for the bound phase (a ScanPhase position).
class PhaseStepsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int phase READ phase WRITE setPhase NOTIFY phaseChanged)

public:
    enum Role { LabelRole = Qt::UserRole + 1, CompletedRole, CurrentRole };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    int phase() const { return int(m_phase); }
    void setPhase(int phase);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void phaseChanged();

private:
    ScanPhase m_phase = ScanPhase::initializing;
    std::array<PhaseStep, 5> m_steps = phaseSteps(ScanPhase::initializing);
};

} // namespace tessarine
