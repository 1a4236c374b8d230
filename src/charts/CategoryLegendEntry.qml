import QtQuick
import QtQuick.Layouts
import Tessarine.App

// One category of the chart's legend: its colour, name and share; clicking it selects the
// category, or clears the selection when it is the selected one.
Rectangle {
    id: entry

    required property int index
    required property int category
    required property string name
    required property string colorName
    required property string share
    property bool selected: false

    signal toggled

    implicitHeight: row.implicitHeight + 8
    implicitWidth: row.implicitWidth + 16
    radius: 6
    color: selected ? Theme.withOpacity(Theme.named(colorName), 0.15) : "transparent"

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.onPressAction: toggled()

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
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
            font: Theme.monospaced(Theme.extraSmall)
            color: Theme.secondary
        }
    }

    TapHandler { onTapped: entry.toggled() }
    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
