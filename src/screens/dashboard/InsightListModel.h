#pragma once

#include "model/Records.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The insight cards of the result bound to it, each with its kind's symbol and colour.
class InsightListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::AnalysisResult result WRITE setResult)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role { InsightRole = Qt::UserRole + 1, SymbolRole, ColorNameRole };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setResult(const AnalysisResult& result);
    int count() const { return int(m_insights.size()); }

signals:
    void countChanged();

private:
    QList<PatternInsight> m_insights;
};

} // namespace tessarine
