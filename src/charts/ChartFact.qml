import QtQuick
import Tessarine.Design

// One figure of a chart's strip, led by its symbol, in the caption font and secondary colour.
Row {
    property string symbol
    property string text

    spacing: 4

    Icon {
        anchors.verticalCenter: parent.verticalCenter
        symbol: parent.symbol
        size: Theme.caption.pixelSize + 3
        color: Theme.secondary
    }

    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: parent.text
        font: Theme.caption
        color: Theme.secondary
    }
}
