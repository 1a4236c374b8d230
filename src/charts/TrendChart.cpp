#include "TrendChart.h"

#include "charts/geometry/AxisTicks.h"
#include "charts/geometry/CatmullRomCurve.h"
#include "model/Format.h"

#include <QDateTime>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <limits>

namespace tessarine {

namespace {

constexpr qreal pointRadius = 3.5;
constexpr qreal lineWidth = 2;
constexpr qreal labelGap = 8;

QString dateLabel(qreal time) {
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(qint64(time)).date(),
                              QLocale::ShortFormat);
}

} // namespace

TrendChart::TrendChart(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &TrendChart::pointsChanged, this, [this] { update(); });
    connect(this, &TrendChart::styleChanged, this, [this] { update(); });
}

void TrendChart::setTimes(const QList<qreal>& times) {
    if (m_times == times)
        return;
    m_times = times;
    emit pointsChanged();
}

void TrendChart::setSizes(const QList<qreal>& sizes) {
    if (m_sizes == sizes)
        return;
    m_sizes = sizes;
    emit pointsChanged();
}

void TrendChart::paint(QPainter* painter) {
    const qsizetype count = std::min(m_times.size(), m_sizes.size());
    if (count == 0)
        return;
    painter->setFont(m_font);
    const QFontMetricsF metrics(m_font);

    const qreal largest = *std::max_element(m_sizes.begin(), m_sizes.begin() + count);
    // A size held at 2^63 - 1 is 2^63 as a qreal, one past what qint64 holds.
    const std::vector<qint64> ticks = niceAxisTicks(
        largest >= 0x1p63 ? std::numeric_limits<qint64>::max() : qint64(std::max(largest, 0.0)));
    const qreal axisEnd = qreal(std::max<qint64>(ticks.back(), 1));
    qreal labelWidth = 0;
    for (qint64 tick : ticks)
        labelWidth = std::max(labelWidth, metrics.horizontalAdvance(format::byteCount(tick)));

    const QRectF plot(labelWidth + labelGap, metrics.height() / 2,
                      width() - labelWidth - labelGap - pointRadius,
                      height() - metrics.height() * 2 - labelGap / 2);
    if (plot.width() <= 0 || plot.height() <= 0)
        return;

    for (qint64 tick : ticks) {
        const qreal y = plot.bottom() - plot.height() * qreal(tick) / axisEnd;
        painter->setPen(QPen(m_gridColor, 1));
        painter->drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        painter->setPen(m_labelColor);
        painter->drawText(QRectF(0, y - metrics.height() / 2, labelWidth, metrics.height()),
                          Qt::AlignRight | Qt::AlignVCenter, format::byteCount(tick));
    }

    const qreal firstTime = m_times.first();
    const qreal span = m_times.at(count - 1) - firstTime;
    std::vector<QPointF> points;
    for (qsizetype i = 0; i < count; ++i) {
        const qreal share = span > 0 ? (m_times.at(i) - firstTime) / span : 0.5;
        points.emplace_back(plot.left() + plot.width() * share,
                            plot.bottom() - plot.height() * m_sizes.at(i) / axisEnd);
    }

    const QRectF dates(plot.left(), plot.bottom() + labelGap / 2, plot.width(), metrics.height());
    painter->setPen(m_labelColor);
    painter->drawText(dates, Qt::AlignLeft | Qt::AlignTop, dateLabel(firstTime));
    if (span > 0)
        painter->drawText(dates, Qt::AlignRight | Qt::AlignTop, dateLabel(m_times.at(count - 1)));

    QPainterPath curve(points.front());
    for (const CubicSegment& segment : catmullRomCurve(points))
        curve.cubicTo(segment.control1, segment.control2, segment.end);
    painter->setPen(QPen(m_lineColor, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(curve);
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_lineColor);
    for (const QPointF& point : points)
        painter->drawEllipse(point, pointRadius, pointRadius);
}

} // namespace tessarine
