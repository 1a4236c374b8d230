import QtQuick
import Tessarine.Design

// A symbol before a short text, in the caption font: one figure of a row of figures.
Row {
    id: label

    property string symbol
    property string text
    property color color: Theme.secondary
    property font font: Theme.caption

    spacing: 4

    Icon {
        anchors.verticalCenter: parent.verticalCenter
        symbol: label.symbol
        size: label.font.pixelSize + 2
        color: label.color
    }

    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: label.text
        font: label.font
        color: label.color
    }
}
