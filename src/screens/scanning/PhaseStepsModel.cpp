#include "screens/scanning/PhaseStepsModel.h"

#include "design/RoleNames.h"

namespace tessarine {

void PhaseStepsModel::setPhase(ScanPhase phase) {
    if (phase == m_phase)
        return;
    m_phase = phase;
    m_steps = phaseSteps(m_phase);
    emit dataChanged(index(0), index(rowCount() - 1), {CompletedRole, CurrentRole});
    emit phaseChanged();
}

int PhaseStepsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_steps.size());
}

QVariant PhaseStepsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const PhaseStep& step = m_steps[std::size_t(index.row())];
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

QHash<int, QByteArray> PhaseStepsModel::roleNames() const {
    return roleNamesOf<Role>();
}

} // namespace tessarine
