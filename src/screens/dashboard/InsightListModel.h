#pragma once

#include "design/RowListModel.h"
#include "model/Records.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The insight cards of the result bound to it, each with its kind's symbol and colour.
class InsightListModel : public RowListModel<InsightListModel, QList<PatternInsight>> {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::AnalysisResult result READ result WRITE setResult NOTIFY countChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role { InsightRole = Qt::UserRole + 1, SymbolRole, ColorNameRole };
    Q_ENUM(Role)

    using RowListModel::RowListModel;

    const AnalysisResult& result() const { return m_result; }
    void setResult(const AnalysisResult& result);
    int count() const { return rowCount(); }

signals:
    void countChanged();

private:
    QVariant rowData(const PatternInsight& insight, int role) const override;

    AnalysisResult m_result;
};

} // namespace tessarine
