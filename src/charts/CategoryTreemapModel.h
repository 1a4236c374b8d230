#pragma once

#include "charts/CategoryListModel.h"
#include "charts/TreemapCell.h"
#include "charts/geometry/CategoryTreemapLayout.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The category treemap of the result bound to it, laid out in the area's size: the cells that
// TreemapCells paints and, per cell, what its label and details bar read. Laid out again
// whenever the size, the result or the selected category changes; the cells are coloured again
// when the desktop switches between light and dark.
class CategoryTreemapModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tessarine::AnalysisResult result READ result WRITE setResult NOTIFY cellsChanged)
    Q_PROPERTY(qreal areaWidth READ areaWidth WRITE setAreaWidth NOTIFY cellsChanged)
    Q_PROPERTY(qreal areaHeight READ areaHeight WRITE setAreaHeight NOTIFY cellsChanged)
    // A FileCategory, or -1 for none.
    Q_PROPERTY(
        int selectedCategory READ selectedCategory WRITE setSelectedCategory NOTIFY cellsChanged)
    Q_PROPERTY(tessarine::TreemapCellList cells READ cells NOTIFY cellsChanged)

public:
    // Besides CategoryListModel's roles, which every cell has too.
    enum Role {
        CellXRole = CategoryListModel::ShareRole + 1,
        CellYRole,
        CellWidthRole,
        CellHeightRole
    };
    Q_ENUM(Role)

    explicit CategoryTreemapModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const AnalysisResult& result() const { return m_result; }
    void setResult(const AnalysisResult& result);
    qreal areaWidth() const { return m_area.width(); }
    void setAreaWidth(qreal width);
    qreal areaHeight() const { return m_area.height(); }
    void setAreaHeight(qreal height);
    int selectedCategory() const { return m_selected; }
    void setSelectedCategory(int category);
    TreemapCellList cells() const;
    // The FileCategory of the cell at row, or -1.
    Q_INVOKABLE int categoryAt(int row) const;

signals:
    // Not layoutChanged: that one tells views that rows moved.
    void cellsChanged();

private:
    void relayout();

    QList<CategoryStats> m_categories;
    AnalysisResult m_result;
    QRectF m_area;
    int m_selected = -1;
    std::vector<TreeMapRect> m_rects;
};

} // namespace tessarine
