import QtQuick
import Tessarine.Design

// A secondary fact led by its symbol in the tertiary colour, as in the dashboard header and the
// recent-scan cards.
// A long text (a path) is shortened in the middle to fit `maximumWidth`.
Row {
    id: label

    property string symbol
    property string text
    property font font: Theme.subheadline
    property real maximumWidth: Number.POSITIVE_INFINITY

    spacing: 5

    Icon {
        id: icon

        anchors.verticalCenter: parent.verticalCenter
        visible: label.symbol !== ""
        symbol: label.symbol
        size: label.font.pixelSize + 2
        color: Theme.tertiary
    }

    Text {
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth,
                        label.maximumWidth - (icon.visible ? icon.width + label.spacing : 0))
        text: label.text
        font: label.font
        color: Theme.secondary
        elide: Text.ElideMiddle
    }
}
