import QtQuick
import Tessarine.Design

// The blue symbol and title over one section of the scan details.
Row {
    property string title
    property string icon

    spacing: 6

    Icon {
        anchors.verticalCenter: parent.verticalCenter
        symbol: parent.icon
        size: 14
        color: Theme.blue
    }

    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: parent.title
        font: Theme.weighted(Theme.subheadline, Font.DemiBold)
        color: Theme.primary
    }
}
