#include "screens/dashboard/InsightListModel.h"

#include "design/RoleNames.h"
#include "screens/dashboard/InsightStyle.h"

namespace tessarine {

int InsightListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant InsightListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const PatternInsight& insight = m_insights.at(index.row());
    switch (Role(role)) {
    case InsightRole:
        return QVariant::fromValue(insight);
    case SymbolRole:
        return insightSymbol(insight.type);
    case ColorNameRole:
        return insightColor(insight.type);
    }
    return {};
}

QHash<int, QByteArray> InsightListModel::roleNames() const {
    return roleNamesOf<Role>();
}

void InsightListModel::setResult(const AnalysisResult& result) {
    beginResetModel();
    m_insights = result.insights;
    endResetModel();
    emit countChanged();
}

} // namespace tessarine
