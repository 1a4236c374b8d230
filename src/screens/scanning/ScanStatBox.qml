import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// One statistic: its label over its value, on a faint tint of its colour.
Rectangle {
    id: box

    property string label
    property string value
    property string colorName

    Accessible.role: Accessible.Grouping
    Accessible.name: label + ", " + value

    implicitHeight: 58
    radius: 8
    color: Theme.withOpacity(Theme.named(colorName), 0.08)

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 4

        Text {
            text: box.label
            font: Theme.caption
            color: Theme.secondary
        }

        Text {
            Layout.fillWidth: true
            text: box.value
            font: Theme.monospaced(Theme.body, Font.Medium)
            color: Theme.primary
            elide: Text.ElideRight
        }
    }
}
