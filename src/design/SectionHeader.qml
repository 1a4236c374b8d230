import QtQuick
import Tessarine.Design

// A symbol and a title introducing one section of a screen.
Row {
    property string title
    property string symbol
    property color symbolColor: Theme.accent
    property font font: Theme.headline

    spacing: Theme.spacingSmall

    Icon {
        anchors.verticalCenter: parent.verticalCenter
        visible: symbol !== ""
        symbol: parent.symbol
        size: parent.font.pixelSize + 3
        color: parent.symbolColor
    }

    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: parent.title
        font: parent.font
        color: Theme.primary
    }
}
