import QtQuick
import Tessarine.App

// The symbol-and-text content shared by the application's buttons.
Row {
    property string text
    property string symbol
    property color color: Theme.primary
    property font font: Theme.body

    spacing: 6

    Icon {
        anchors.verticalCenter: parent.verticalCenter
        visible: parent.symbol !== ""
        symbol: parent.symbol
        size: parent.font.pixelSize + 3
        color: parent.color
    }

    Text {
        anchors.verticalCenter: parent.verticalCenter
        visible: text !== ""
        text: parent.text
        font: parent.font
        color: parent.color
    }
}
