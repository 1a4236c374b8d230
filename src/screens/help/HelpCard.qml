import QtQuick
import Tessarine.Design
import Tessarine.Screens

// A titled card of the help: its symbol in its colour and its title, then what it explains.
Rectangle {
    id: card

    property string title
    property string icon
    property color tint: Theme.accent
    default property alias content: body.data

    width: parent ? parent.width : 0
    implicitHeight: column.implicitHeight + 2 * Theme.spacingLarge
    radius: Theme.radiusCard
    color: Theme.controlBackground
    border.width: 1
    border.color: Theme.separator
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Column {
        id: column
        x: Theme.spacingLarge
        y: Theme.spacingLarge
        width: parent.width - 2 * Theme.spacingLarge
        spacing: Theme.spacingMedium

        Row {
            spacing: Theme.spacingSmall
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                symbol: card.icon
                size: 18
                color: card.tint
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: card.title
                font: Theme.weighted(Theme.title3, Font.DemiBold)
                color: Theme.primary
            }
        }

        Column {
            id: body
            width: parent.width
            spacing: Theme.spacingSmall + 2
        }
    }
}
