import QtQuick
import Tessarine.Design

// A symbol filled with the blue-to-purple gradient. Painted on a canvas because the software
// renderer has no shader effects to mask a gradient with a glyph.
Canvas {
    id: icon

    property string symbol
    property real size: 16
    // The gradient runs along the diagonal from the top-leading to the bottom-trailing corner.
    property color startColor: Theme.blue
    property color endColor: Theme.purple

    implicitWidth: size
    implicitHeight: size

    onSymbolChanged: requestPaint()
    onSizeChanged: requestPaint()
    onStartColorChanged: requestPaint()
    onEndColorChanged: requestPaint()

    onPaint: {
        const context = getContext("2d")
        context.reset()
        const fill = context.createLinearGradient(0, 0, width, height)
        fill.addColorStop(0, startColor)
        fill.addColorStop(1, endColor)
        context.fillStyle = fill
        context.font = `${Math.round(size)}px "${Symbols.fontFamily}"`
        context.textAlign = "center"
        context.textBaseline = "middle"
        context.fillText(Symbols.glyph(symbol), width / 2, height / 2)
    }
}
