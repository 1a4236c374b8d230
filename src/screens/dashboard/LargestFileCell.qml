import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// One cell of the largest-files table: the row's alternating or selected background, the clicks
// on it, which it hands to its table, and only what its column shows (the file's icon, name and
// folder; its size; its type; when it changed; its depth), so a cell costs few items.
Rectangle {
    id: cell

    required property int row
    required property int column
    required property bool selected
    required property string name
    required property string folder
    required property string symbol
    required property string colorName
    required property string sizeText
    required property string typeText
    // Invalid where the file's date is not known.
    required property var modificationDate
    required property double depth
    // Follows the clock, as every relative date does; only the cells of its column ask for it.
    readonly property string modifiedText: column === 3
                                           ? Format.relativeDate(modificationDate, Format.now) : ""

    implicitHeight: 40
    color: selected ? Theme.withOpacity(Theme.accent, 0.18)
                    : (row % 2 === 1 ? Theme.withOpacity(Theme.secondary, 0.05) : "transparent")
    Accessible.role: Accessible.Cell
    Accessible.name: [name, sizeText, typeText, modifiedText, String(depth)][column]
    Accessible.selected: selected

    Loader {
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 8
        sourceComponent: [nameContent, sizeContent, typeContent, modifiedContent, depthContent][cell.column]
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onPressed: mouse => {
            if (mouse.button === Qt.RightButton)
                cell.TableView.view.contextMenuRequested(cell.row)
            else
                cell.TableView.view.rowPressed(cell.row, mouse.modifiers)
        }
        onDoubleClicked: mouse => {
            if (mouse.button === Qt.LeftButton)
                cell.TableView.view.rowDoubleClicked(cell.row)
        }
    }

    Component {
        id: nameContent

        RowLayout {
            spacing: 8

            Rectangle {
                implicitWidth: 28
                implicitHeight: 28
                radius: 4
                color: Theme.withOpacity(Theme.named(cell.colorName), 0.15)

                Icon {
                    anchors.centerIn: parent
                    symbol: cell.symbol
                    size: 12
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
    }

    Component {
        id: sizeContent

        Text {
            verticalAlignment: Text.AlignVCenter
            text: cell.sizeText
            font: Theme.tabularDigits(Theme.body)
            color: Theme.secondary
        }
    }

    Component {
        id: typeContent

        Item {
            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 8
                height: 8
                radius: 4
                color: Theme.named(cell.colorName)
            }

            Text {
                anchors.verticalCenter: parent.verticalCenter
                x: 14
                text: cell.typeText
                font: Theme.caption
                color: Theme.secondary
            }
        }
    }

    Component {
        id: modifiedContent

        Text {
            verticalAlignment: Text.AlignVCenter
            text: cell.modifiedText
            font: Theme.caption
            color: Theme.secondary
        }
    }

    Component {
        id: depthContent

        Text {
            verticalAlignment: Text.AlignVCenter
            text: cell.depth
            font: Theme.caption
            color: Theme.tertiary
        }
    }
}
