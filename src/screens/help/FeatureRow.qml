import QtQuick
import Tessarine.Design
import Tessarine.Screens

// A feature or an action: its symbol in its colour, then the text.
Item {
    id: row

    property string icon
    property string text
    property color tint: Theme.accent
    property color textColor: Theme.primary

    Accessible.role: Accessible.ListItem
    Accessible.name: text

    width: parent ? parent.width : 0
    implicitHeight: Math.max(20, label.implicitHeight)

    Icon {
        id: symbol
        width: 24
        anchors.verticalCenter: parent.verticalCenter
        symbol: row.icon
        color: row.tint
    }

    Text {
        id: label
        anchors.left: symbol.right
        anchors.leftMargin: Theme.spacingSmall
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: row.text
        wrapMode: Text.Wrap
        font: Theme.body
        color: row.textColor
    }
}
