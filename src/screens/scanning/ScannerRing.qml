import QtQuick
import Tessarine.Design

// The ring's full circle: a thin stroke whose colour turns from blue through purple to pale blue.
Canvas {
    onPaint: {
        const context = getContext("2d")
        context.reset()
        const centre = width / 2
        const gradient = context.createConicalGradient(centre, centre, 0)
        gradient.addColorStop(0, Theme.blue)
        gradient.addColorStop(0.5, Theme.purple)
        gradient.addColorStop(1, Theme.withOpacity(Theme.blue, 0.3))
        context.lineWidth = 3
        context.strokeStyle = gradient
        context.beginPath()
        context.arc(centre, centre, centre - 3, 0, 2 * Math.PI)
        context.stroke()
    }
}
