import QtQuick
import Tessarine.Design

// Dashed grid lines across a plot at the given positions: vertical lines at x positions, or
// horizontal ones at y positions. Painted in one item, as the software renderer draws no shapes.
Canvas {
    id: grid

    property list<real> positions
    property bool vertical: true

    onPositionsChanged: requestPaint()
    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()

    onPaint: {
        const context = getContext("2d")
        context.reset()
        context.strokeStyle = Theme.withOpacity(Theme.secondary, 0.5)
        context.lineWidth = 0.5
        context.setLineDash([4, 4])
        context.beginPath()
        for (const position of positions) {
            const at = Math.round(position) + 0.25
            if (vertical) {
                context.moveTo(at, 0)
                context.lineTo(at, height)
            } else {
                context.moveTo(0, at)
                context.lineTo(width, at)
            }
        }
        context.stroke()
    }
}
