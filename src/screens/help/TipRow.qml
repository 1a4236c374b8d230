import QtQuick
import Tessarine.Design
import Tessarine.Screens

// A tip: its symbol in its colour, the title over the explanation.
Item {
    id: row

    property string icon
    property string title
    property string description
    property color tint: Theme.accent

    Accessible.role: Accessible.ListItem
    Accessible.name: title + ", " + description

    width: parent ? parent.width : 0
    implicitHeight: texts.implicitHeight

    Icon {
        id: symbol
        width: 24
        symbol: row.icon
        size: Theme.title3.pixelSize
        color: row.tint
    }

    Column {
        id: texts
        anchors.left: symbol.right
        anchors.leftMargin: Theme.spacingSmall
        anchors.right: parent.right
        spacing: 2
        Text {
            width: parent.width
            text: row.title
            font: Theme.headline
            color: Theme.primary
        }
        Text {
            width: parent.width
            text: row.description
            wrapMode: Text.Wrap
            font: Theme.callout
            color: Theme.secondary
        }
    }
}
