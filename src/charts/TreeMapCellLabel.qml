import QtQuick
import Tessarine.Design

// What a treemap cell says over its colour: its symbol once the cell is large enough to read,
// then its name and size once there is room. Grows with the cell under the pointer. Screen readers
// hear the cell itself (TreemapCells), not this label.
Item {
    id: label

    required property int index
    required property string name
    required property string symbol
    required property string colorName
    required property double totalSize
    required property double fileCount
    required property string share
    required property real cellX
    required property real cellY
    required property real cellWidth
    required property real cellHeight
    property bool hovered: false
    property real hoverScale: 1
    property int hoverDuration: 0

    readonly property bool showsSymbol: cellWidth > 60 && cellHeight > 40
    readonly property bool showsDetails: cellWidth > 100 && cellHeight > 60

    x: cellX
    y: cellY
    width: cellWidth
    height: cellHeight
    scale: hovered ? hoverScale : 1

    // The curve TreemapCells grows its cells by.
    Behavior on scale { NumberAnimation { duration: label.hoverDuration; easing.type: Easing.OutQuad } }

    Column {
        anchors.centerIn: parent
        visible: label.showsSymbol
        spacing: 2

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: label.symbol
            size: (label.showsDetails ? Theme.title3 : Theme.caption).pixelSize + 3
            color: "white"
            style: Text.Raised
            styleColor: Qt.rgba(0, 0, 0, 0.3)
        }

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: label.showsDetails
            text: label.name
            font: Theme.weighted(Theme.caption, Font.Medium)
            color: "white"
            style: Text.Raised
            styleColor: Qt.rgba(0, 0, 0, 0.3)
        }

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: label.showsDetails
            text: Format.byteCount(label.totalSize)
            font: Theme.extraSmall
            color: Qt.rgba(1, 1, 1, 0.9)
            style: Text.Raised
            styleColor: Qt.rgba(0, 0, 0, 0.3)
        }
    }
}
