import QtQuick
import Tessarine.Design
import Tessarine.Screens

// One section of the help: its title, its introduction where it has one, then its cards.
Column {
    id: section

    property string title
    property string introduction
    default property alias cards: body.data

    spacing: Theme.spacingXLarge

    Column {
        width: parent.width
        spacing: Theme.spacingSmall
        Text {
            text: section.title
            font: Theme.weighted(Theme.title, Font.Bold)
            color: Theme.primary
        }
        Text {
            width: parent.width
            visible: section.introduction !== ""
            text: section.introduction
            wrapMode: Text.Wrap
            font: Theme.body
            color: Theme.secondary
        }
    }

    Column {
        id: body
        width: parent.width
        spacing: Theme.spacingLarge
    }
}
