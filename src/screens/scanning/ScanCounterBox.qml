import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// A running count of the status panel: symbol, the grouped number and its label. The number
// counts up to each new figure rather than jumping to it, so the digits change smoothly.
Rectangle {
    id: box

    property double count
    // The figure on show, on its way to count.
    property double shownCount: count
    readonly property string value: Format.count(Math.round(shownCount))
    property string label
    property string icon
    property color tint: Theme.blue

    Accessible.role: Accessible.Grouping
    Accessible.name: label + ", " + Format.count(count)

    Behavior on shownCount {
        NumberAnimation {
            duration: Theme.quickDuration
            easing.type: Easing.OutQuad
        }
    }

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
            font: Theme.tabularDigits(Theme.title, Font.Bold)
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
