import QtQuick
import QtQuick.Layouts
import Tessarine.App

// One cell of the largest-files table, drawn by its column: the file's icon, name and folder; its
// size; its type; when it changed; its depth. Rows alternate their background and show selection.
Rectangle {
    id: cell

    required property int row
    required property int column
    required property string name
    required property string folder
    required property string sizeText
    required property string typeText
    required property string symbol
    required property string colorName
    required property string modifiedText
    required property double depth
    required property bool selected

    signal pressed(int row, int modifiers)
    signal doubleClicked(int row)
    signal contextMenuRequested(int row, real x, real y)

    implicitHeight: 40
    color: selected ? Theme.withOpacity(Theme.accent, 0.18)
                    : (row % 2 === 1 ? Theme.withOpacity(Theme.secondary, 0.05) : "transparent")

    RowLayout {
        visible: cell.column === 0
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        spacing: 8

        Rectangle {
            implicitWidth: 28
            implicitHeight: 28
            radius: 4
            color: Theme.withOpacity(Theme.named(cell.colorName), 0.15)

            Icon {
                anchors.centerIn: parent
                symbol: cell.symbol
                size: 14
                color: Theme.named(cell.colorName)
            }
        }

        Column {
            Layout.fillWidth: true

            Text {
                width: parent.width
                text: cell.name
                font: Theme.body
                color: Theme.primary
                elide: Text.ElideRight
                maximumLineCount: 1
            }

            Text {
                width: parent.width
                text: cell.folder
                font: Theme.extraSmall
                color: Theme.tertiary
                elide: Text.ElideLeft
                maximumLineCount: 1
            }
        }
    }

    Text {
        visible: cell.column === 1
        anchors.verticalCenter: parent.verticalCenter
        x: 8
        text: cell.sizeText
        font: Theme.monospaced(Theme.body)
        color: Theme.secondary
    }

    Row {
        visible: cell.column === 2
        anchors.verticalCenter: parent.verticalCenter
        x: 8
        spacing: 6

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 8
            height: 8
            radius: 4
            color: Theme.named(cell.colorName)
        }

        Text {
            text: cell.typeText
            font: Theme.caption
            color: Theme.secondary
        }
    }

    Text {
        visible: cell.column === 3 || cell.column === 4
        anchors.verticalCenter: parent.verticalCenter
        x: 8
        text: cell.column === 3 ? cell.modifiedText : cell.depth
        font: Theme.caption
        color: cell.column === 3 ? Theme.secondary : Theme.tertiary
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: mouse => {
            if (mouse.button === Qt.RightButton)
                cell.contextMenuRequested(cell.row, mouse.x, mouse.y)
            else
                cell.pressed(cell.row, mouse.modifiers)
        }
        onDoubleClicked: mouse => {
            if (mouse.button === Qt.LeftButton)
                cell.doubleClicked(cell.row)
        }
    }
}
