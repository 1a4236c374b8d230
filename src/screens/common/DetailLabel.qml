import QtQuick
import Tessarine.App

// A secondary fact led by its symbol in the tertiary colour, as in the dashboard header and the
// recent-scan cards.
Row {
    property string symbol
    property string text
    property font font: Theme.subheadline

    spacing: 5

    Icon {
        anchors.verticalCenter: parent.verticalCenter
        visible: parent.symbol !== ""
        symbol: parent.symbol
        size: parent.font.pixelSize + 2
        color: Theme.tertiary
    }

    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: parent.text
        font: parent.font
        color: Theme.secondary
    }
}
