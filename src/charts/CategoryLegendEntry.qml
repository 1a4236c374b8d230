import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.Design

// One category of the chart's legend: its colour, name and share; clicking it selects the
// category, or clears the selection when it is the selected one (as Space and Return do).
AbstractButton {
    id: entry

    required property int index
    required property int category
    required property string name
    required property string colorName
    required property string share
    property bool selected: false

    signal toggled

    padding: 4
    leftPadding: 8
    rightPadding: 8
    onClicked: toggled()

    background: Rectangle {
        radius: 6
        // The tint fades in and out in its own colour rather than through a transparent black.
        color: Theme.withOpacity(Theme.named(entry.colorName), entry.selected ? 0.15 : 0)

        Behavior on color { ColorAnimation { duration: Theme.quickDuration; easing.type: Theme.standardEasing } }

        FocusRing {
            shown: entry.visualFocus
            controlRadius: parent.radius
        }
    }

    Accessible.role: Accessible.Button
    Accessible.name: name

    contentItem: RowLayout {
        spacing: 6

        Rectangle {
            implicitWidth: 8
            implicitHeight: 8
            radius: 4
            color: Theme.named(entry.colorName)
        }

        Text {
            Layout.fillWidth: true
            text: entry.name
            font: Theme.caption
            color: Theme.primary
            elide: Text.ElideRight
        }

        Text {
            text: entry.share
            font: Theme.tabularDigits(Theme.extraSmall)
            color: Theme.secondary
        }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
