import QtQuick
import Tessarine.Design
import Tessarine.Screens

// A keyboard shortcut as key caps, then what it does. The text names the Command key; on this
// platform that key is Ctrl.
Row {
    property string shortcut
    property string modifiers
    property string description

    Accessible.role: Accessible.ListItem
    Accessible.name: description + ", " + (modifiers === "Cmd" ? "Ctrl" : modifiers) + " + " + shortcut

    spacing: Theme.spacingSmall

    KeyCap {
        text: parent.modifiers === "Cmd" ? "Ctrl" : parent.modifiers
    }
    KeyCap {
        text: parent.shortcut
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        leftPadding: Theme.spacingSmall
        text: parent.description
        font: Theme.body
        color: Theme.primary
    }
}
