import QtQuick
import Tessarine.Design
import Tessarine.Screens

// An export format: its name in its colour, then what it is for.
Row {
    property string format
    property string description
    property color tint: Theme.accent

    Accessible.role: Accessible.ListItem
    Accessible.name: format + ", " + description

    spacing: Theme.spacingSmall

    Text {
        width: 44
        text: parent.format
        font: Theme.weighted(Theme.body, Font.Bold)
        color: parent.tint
    }
    Text {
        text: parent.description
        font: Theme.body
        color: Theme.secondary
    }
}
