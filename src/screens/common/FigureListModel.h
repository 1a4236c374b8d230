#pragma once

#include "screens/common/Figure.h"

#include "design/RowListModel.h"

#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tessarine {

// A short, fixed list of figures for a row or grid of cards. New values replace the old ones in
// place, so the cards stay put while their numbers change.
class FigureListModel : public RowListModel<FigureListModel, std::vector<Figure>> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Figure lists are made by the objects that compute them")

public:
    enum Role { TitleRole = Qt::UserRole + 1, ValueRole, DetailRole, IconRole, ColorRole };
    Q_ENUM(Role)

    using RowListModel::RowListModel;

    const std::vector<Figure>& figures() const { return m_rows; }
    void setFigures(std::vector<Figure> figures);

private:
    QVariant rowData(const Figure& figure, int role) const override;
};

} // namespace tessarine
