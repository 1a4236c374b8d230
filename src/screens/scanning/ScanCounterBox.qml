import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// A running count of the status panel: symbol, the grouped number and its label.
Rectangle {
    id: box

    property string value
    property string label
    property string icon
    property color tint: Theme.blue

    Accessible.role: Accessible.Grouping
    Accessible.name: label + ", " + value

    implicitHeight: 92
    radius: Theme.radiusCard
    color: Theme.controlBackground
    border.width: 1
    border.color: Theme.separator

    ColumnLayout {
        anchors.centerIn: parent
        spacing: 4

        Icon {
            Layout.alignment: Qt.AlignHCenter
            symbol: box.icon
            size: 20
            color: box.tint
        }

        Text {
            Layout.alignment: Qt.AlignHCenter
            text: box.value
            font: Theme.monospaced(Theme.title, Font.Bold)
            color: Theme.primary
        }

        Text {
            Layout.alignment: Qt.AlignHCenter
            text: box.label
            font: Theme.caption
            color: Theme.secondary
        }
    }
}
