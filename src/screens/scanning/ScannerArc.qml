import QtQuick
import Tessarine.Design

// The ring's spinning arc: a third of the circle with round caps, blue to purple. It is painted
// once; the spin turns the item, so the canvas repaints only when the appearance switches.
Canvas {
    property color startColor: Theme.blue
    property color endColor: Theme.purple

    onStartColorChanged: requestPaint()
    onEndColorChanged: requestPaint()

    onPaint: {
        const context = getContext("2d")
        context.reset()
        const centre = width / 2
        const gradient = context.createLinearGradient(0, 0, width, height)
        gradient.addColorStop(0, startColor)
        gradient.addColorStop(1, endColor)
        context.lineWidth = 5
        context.lineCap = "round"
        context.strokeStyle = gradient
        context.beginPath()
        context.arc(centre, centre, centre - 3, -Math.PI / 2, -Math.PI / 2 + 0.35 * 2 * Math.PI)
        context.stroke()
    }
}
