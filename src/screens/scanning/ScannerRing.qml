import QtQuick
import Tessarine.Design

// The ring's full circle: a thin stroke whose colour turns from blue through purple to pale blue.
// A canvas keeps what it painted, so it paints again when the appearance switches.
Canvas {
    property color startColor: Theme.blue
    property color middleColor: Theme.purple

    onStartColorChanged: requestPaint()
    onMiddleColorChanged: requestPaint()

    onPaint: {
        const context = getContext("2d")
        context.reset()
        const centre = width / 2
        const gradient = context.createConicalGradient(centre, centre, 0)
        gradient.addColorStop(0, startColor)
        gradient.addColorStop(0.5, middleColor)
        gradient.addColorStop(1, Theme.withOpacity(startColor, 0.3))
        context.lineWidth = 3
        context.strokeStyle = gradient
        context.beginPath()
        context.arc(centre, centre, centre - 3, 0, 2 * Math.PI)
        context.stroke()
    }
}
