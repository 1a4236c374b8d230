import QtQuick
import Tessarine.Design

// A figure of the status panel: an optional symbol beside the value, a lower-case caption under.
Column {
    id: figure

    property string icon
    property color color: Theme.secondary
    property string value
    property color valueColor: Theme.primary
    property string caption
    // The data-and-rate row reads larger than the row of times under it.
    property bool large: false

    spacing: 2

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 5

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            visible: figure.icon !== ""
            symbol: figure.icon
            size: figure.large ? 15 : 12
            color: figure.color
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: figure.value
            font: Theme.monospaced(figure.large ? Theme.title3 : Theme.callout, Font.DemiBold)
            color: figure.valueColor
        }
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: figure.caption
        font: Theme.caption
        color: Theme.secondary
    }
}
