#include "screens/scanning/PhaseStepsModel.h"

namespace tessarine {

PhaseStepsModel::PhaseStepsModel(QObject* parent)
    : RowListModel(parent) {
    m_rows = phaseSteps(m_phase);
}

void PhaseStepsModel::setPhase(ScanPhase phase) {
    if (phase == m_phase)
        return;
    m_phase = phase;
    m_rows = phaseSteps(m_phase);
    emit dataChanged(index(0), index(rowCount() - 1), {CompletedRole, CurrentRole});
    emit phaseChanged();
}

QVariant PhaseStepsModel::rowData(const PhaseStep& step, int role) const {
    switch (Role(role)) {
    case LabelRole:
        return phaseShortLabel(step.phase);
    case CompletedRole:
        return step.completed;
    case CurrentRole:
        return step.current;
    }
    return {};
}

} // namespace tessarine
