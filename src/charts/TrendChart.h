#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Sizes over time as a smooth curve through points, over a byte-count axis with grid lines and
// the first and last dates below. Painted in one item: the software renderer draws no custom
// geometry, and a handful of points needs no scene-graph nodes of its own.
class TrendChart : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    // Points in time as milliseconds since the epoch, ascending, and the size at each.
    Q_PROPERTY(QList<qreal> times READ times WRITE setTimes NOTIFY pointsChanged)
    Q_PROPERTY(QList<qreal> sizes READ sizes WRITE setSizes NOTIFY pointsChanged)
    Q_PROPERTY(QColor lineColor MEMBER m_lineColor NOTIFY styleChanged)
    Q_PROPERTY(QColor labelColor MEMBER m_labelColor NOTIFY styleChanged)
    Q_PROPERTY(QColor gridColor MEMBER m_gridColor NOTIFY styleChanged)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY styleChanged)

public:
    explicit TrendChart(QQuickItem* parent = nullptr);

    const QList<qreal>& times() const { return m_times; }
    void setTimes(const QList<qreal>& times);
    const QList<qreal>& sizes() const { return m_sizes; }
    void setSizes(const QList<qreal>& sizes);

    void paint(QPainter* painter) override;

signals:
    void pointsChanged();
    void styleChanged();

private:
    QList<qreal> m_times;
    QList<qreal> m_sizes;
    QColor m_lineColor = Qt::green;
    QColor m_labelColor = Qt::gray;
    QColor m_gridColor = Qt::lightGray;
    QFont m_font;
};

} // namespace tessarine
