import QtQuick
import Tessarine.Design
import Tessarine.Screens

// Whether a scan is picked: a filled accent circle with a check, or an empty faint ring.
Rectangle {
    property bool selected: false

    width: 20
    height: 20
    radius: 10
    color: selected ? Theme.accent : "transparent"
    border.width: 2
    border.color: selected ? Theme.accent : Theme.withOpacity(Theme.secondary, 0.3)

    Icon {
        anchors.centerIn: parent
        visible: parent.selected
        symbol: "checkmark"
        size: 13
        color: Theme.labelOnAccent
        font.bold: true
    }
}
