#pragma once

#include "screens/common/Figure.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tessarine {

// A short, fixed list of figures for a row or grid of cards. New values replace the old ones in
// place, so the cards stay put while their numbers change.
class FigureListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Figure lists are made by the objects that compute them")

public:
    enum Role { TitleRole = Qt::UserRole + 1, ValueRole, DetailRole, IconRole, ColorRole };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const std::vector<Figure>& figures() const { return m_figures; }
    void setFigures(std::vector<Figure> figures);

private:
    std::vector<Figure> m_figures;
};

} // namespace tessarine
