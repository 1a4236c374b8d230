import QtQuick
import Tessarine.Design

// "or" between two short hairlines, between the drop zone and the picker button.
Row {
    component Hairline: Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 100
        height: 1
        color: Theme.withOpacity(Theme.secondary, 0.2)
    }

    spacing: Theme.spacingMedium

    Hairline {}

    Text {
        text: "or"
        font: Theme.callout
        color: Theme.secondary
    }

    Hairline {}
}
