#pragma once

#include "screens/scanning/ScanPhaseDisplay.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The five dots of the phase-steps row for the bound phase.
class PhaseStepsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::ScanPhase phase READ phase WRITE setPhase NOTIFY phaseChanged)

public:
    enum Role { LabelRole = Qt::UserRole + 1, CompletedRole, CurrentRole };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    ScanPhase phase() const { return m_phase; }
    void setPhase(ScanPhase phase);

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
