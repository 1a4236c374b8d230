#pragma once

#include "model/Records.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The categories of the result bound to it, largest first (ties keep the result's order), as the
// category chart, its legend and the treemap's details bar read them.
class CategoryListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::AnalysisResult result WRITE setResult)
    Q_PROPERTY(int count READ count NOTIFY resultChanged)
    // The value axis, from 0 to its last tick, which the longest bar reaches or nearly so.
    Q_PROPERTY(QList<double> axisTicks READ axisTicks NOTIFY resultChanged)
    Q_PROPERTY(qint64 largestSize READ largestSize NOTIFY resultChanged)

public:
    enum Role {
        CategoryRole = Qt::UserRole + 1,
        NameRole,
        SymbolRole,
        ColorNameRole,
        TotalSizeRole,
        FileCountRole,
        ShareRole
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // A category's value for one of the roles above, its share taken of totalSize; the treemap's
    // cells say the same of their categories.
    static QVariant categoryData(const CategoryStats& stats, qint64 totalSize, int role);

    void setResult(const AnalysisResult& result);
    QList<double> axisTicks() const;
    int count() const { return int(m_categories.size()); }
    qint64 largestSize() const;
    // The row of category, or -1 when the result has none of it.
    Q_INVOKABLE int rowOf(int category) const;

signals:
    void resultChanged();

private:
    QList<CategoryStats> m_categories;
    qint64 m_totalSize = 0;
};

// The result's categories, largest first; ties keep their order.
QList<CategoryStats> categoriesLargestFirst(const AnalysisResult& result);

} // namespace tessarine
