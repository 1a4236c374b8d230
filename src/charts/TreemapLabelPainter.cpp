#include "charts/TreemapLabelPainter.h"

#include "design/SymbolTable.h"

#include <QFontMetricsF>
#include <QGuiApplication>

namespace tessarine {

namespace {

constexpr qreal horizontalPadding = 4;
constexpr qreal topPadding = 3;
constexpr qreal spacing = 3;
constexpr qreal symbolSize = 9;
constexpr qreal minimumTitleWidth = 30;
const QColor shadowColor = QColor::fromRgbF(0, 0, 0, 0.6f);

QFont fontOf(const QString& family, qreal pixelSize, QFont::Weight weight = QFont::Normal) {
    QFont font(family);
    font.setPixelSize(std::max(1, qRound(pixelSize)));
    font.setWeight(weight);
    return font;
}

// Draws text with its top-left at point, white over a shadow one point lower, and returns its
// width.
qreal paintText(QPainter& painter, const QPointF& point, const QString& text, const QFont& font,
                const QColor& color) {
    const QFontMetricsF metrics(font);
    const QPointF baseline = point + QPointF(0, metrics.ascent());
    painter.setFont(font);
    painter.setPen(shadowColor);
    painter.drawText(baseline + QPointF(0, 1), text);
    painter.setPen(color);
    painter.drawText(baseline, text);
    return metrics.horizontalAdvance(text);
}

} // namespace

void paintTreemapLabel(QPainter& painter, const QRectF& cell, const TreemapLabel& label) {
    if (label.title.isEmpty())
        return;
    const QRectF room = cell.adjusted(label.inset + horizontalPadding, label.inset + topPadding,
                                      -label.inset - horizontalPadding, -label.inset);
    if (room.width() <= 0 || room.height() <= 0)
        return;
    painter.save();
    painter.setClipRect(room, Qt::IntersectClip);
    painter.setRenderHint(QPainter::TextAntialiasing, true);

    const QString family = QGuiApplication::font().family();
    const QFont titleFont = fontOf(family, label.titleSize, QFont::Medium);
    const qreal rowHeight = QFontMetricsF(titleFont).height();
    qreal x = room.left();
    if (label.showsSymbol) {
        const QFont symbolFont = fontOf(SymbolTable::fontFamily(), symbolSize);
        const QString glyph(QChar(SymbolTable::codepoint(QStringLiteral("folder.fill"))));
        const qreal top = room.top() + (rowHeight - QFontMetricsF(symbolFont).height()) / 2;
        x += paintText(painter, QPointF(x, top), glyph, symbolFont, Qt::white) + spacing;
    }

    // The title gives way to the figure, down to a few letters; below that the figure goes.
    const QFont detailFont = fontOf(family, label.detailSize);
    const qreal detailWidth =
        label.detail.isEmpty() ? 0 : QFontMetricsF(detailFont).horizontalAdvance(label.detail);
    const qreal titleFull = QFontMetricsF(titleFont).horizontalAdvance(label.title);
    const qreal titleRoomBesideDetail = room.right() - x - spacing - detailWidth;
    const bool showsDetail =
        detailWidth > 0 && titleRoomBesideDetail >= std::min(titleFull, minimumTitleWidth);
    const qreal titleRoom = showsDetail ? titleRoomBesideDetail : room.right() - x;
    const QString title =
        QFontMetricsF(titleFont).elidedText(label.title, Qt::ElideRight, titleRoom);
    x += paintText(painter, QPointF(x, room.top()), title, titleFont, Qt::white) + spacing;
    if (showsDetail) {
        const qreal top =
            room.top() + QFontMetricsF(titleFont).ascent() - QFontMetricsF(detailFont).ascent();
        QColor detailColor(Qt::white);
        detailColor.setAlphaF(0.85f);
        paintText(painter, QPointF(x, top), label.detail, detailFont, detailColor);
    }
    painter.restore();
}

} // namespace tessarine
