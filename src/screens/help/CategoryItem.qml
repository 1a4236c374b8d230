import QtQuick
import Tessarine.Design
import Tessarine.Screens

// A file category with its symbol and colour.
Row {
    property string name
    property string icon
    property color tint: Theme.accent

    Accessible.role: Accessible.ListItem
    Accessible.name: name

    spacing: Theme.spacingTiny

    Icon {
        width: 20
        anchors.verticalCenter: parent.verticalCenter
        symbol: parent.icon
        color: parent.tint
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: parent.name
        font: Theme.body
        color: Theme.primary
    }
}
