#pragma once

#include "design/RowListModel.h"
#include "model/Records.h"

#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The categories of the result bound to it, largest first (ties keep the result's order), as the
// category chart, its legend and the treemap's details bar read them.
class CategoryListModel : public RowListModel<CategoryListModel, QList<CategoryStats>> {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::AnalysisResult result READ result WRITE setResult NOTIFY resultChanged)
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

    using RowListModel::RowListModel;

    // A category's value for one of the roles above, its share taken of totalSize; the treemap's
    // cells say the same of their categories.
    static QVariant categoryData(const CategoryStats& stats, qint64 totalSize, int role);

    const AnalysisResult& result() const { return m_result; }
    void setResult(const AnalysisResult& result);
    QList<double> axisTicks() const;
    int count() const { return rowCount(); }
    qint64 largestSize() const;
    // The row of category, or -1 when the result has none of it.
    Q_INVOKABLE int rowOf(int category) const;

signals:
    void resultChanged();

private:
    QVariant rowData(const CategoryStats& stats, int role) const override;

    AnalysisResult m_result;
};

// The result's categories, largest first; ties keep their order.
QList<CategoryStats> categoriesLargestFirst(const AnalysisResult& result);

} // namespace tessarine
