import QtQuick
import Tessarine.Design

// A symbol by its system name, drawn from the icon font: Icon { symbol: "folder.fill"; size: 16 }.
Text {
    id: icon

    property string symbol
    property real size: 16

    width: size
    height: size
    text: Symbols.glyph(symbol)
    color: Theme.primary
    font.family: Symbols.fontFamily
    font.pixelSize: size
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true
}
