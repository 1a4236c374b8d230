#include "screens/dashboard/InsightListModel.h"

#include "screens/dashboard/InsightStyle.h"

namespace tessarine {

QVariant InsightListModel::rowData(const PatternInsight& insight, int role) const {
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

void InsightListModel::setResult(const AnalysisResult& result) {
    m_result = result;
    resetRows(result.insights);
    emit countChanged();
}

} // namespace tessarine
