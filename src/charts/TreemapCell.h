#pragma once

#include <QColor>
#include <QList>
#include <QObject>
#include <QRectF>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// A border drawn inside a cell's edge.
struct CellBorder {
    QColor color;
    qreal width = 0;

    bool operator==(const CellBorder&) const = default;
};

// The caption painted at a cell's top-left corner: an optional folder symbol, a title on one line
// and a figure after it, white over a dark shadow so it reads on every palette colour. Sizes are
// pixel sizes; an empty title paints nothing.
struct TreemapLabel {
    QString title;
    QString detail;
    bool showsSymbol = false;
    qreal titleSize = 0;
    qreal detailSize = 0;
    // Extra room between the cell's edge and the caption.
    qreal inset = 0;

    bool operator==(const TreemapLabel&) const = default;
};

// What a screen reader says of a cell, which is painted and so has no item to carry it: its name,
// and as its value its size with its share of everything the treemap shows.
struct TreemapCellSpeech {
    QString name;
    qint64 size = 0;
    qint64 wholeSize = 0;

    // "<size>, <n> percent", the share truncated to a whole number.
    QString value() const;

    bool operator==(const TreemapCellSpeech&) const = default;
};

// One cell as TreemapCells draws it, in the item's coordinates, normally and while hovered: a
// rounded rectangle filled with fill at opacity, its border drawn inside the same shape.
struct TreemapCell {
    QRectF rect;
    qreal radius = 0;
    QColor fill;
    qreal opacity = 1;
    CellBorder border;
    qreal hoveredOpacity = 1;
    CellBorder hoveredBorder;
    TreemapLabel label;
    TreemapCellSpeech speech;

    bool operator==(const TreemapCell&) const = default;
};

// The cells of one treemap, handed from the C++ that lays them out to a TreemapCells item
// through QML without a QML object per cell.
class TreemapCellList {
    Q_GADGET
    QML_VALUE_TYPE(treemapCellList)
    Q_PROPERTY(int count READ count)

public:
    TreemapCellList() = default;
    explicit TreemapCellList(QList<TreemapCell> cells)
        : m_cells(std::move(cells)) {}

    const QList<TreemapCell>& cells() const { return m_cells; }
    int count() const { return static_cast<int>(m_cells.size()); }

    bool operator==(const TreemapCellList&) const = default;

private:
    QList<TreemapCell> m_cells;
};

} // namespace tessarine
