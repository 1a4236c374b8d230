import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// "Folders": the folders that grew, appeared, shrank or went, largest change first, each with a
// bar for its size; a click shows the folder in the file manager. Two scans whose folders cannot
// be compared get the one line that says why instead.
ColumnLayout {
    id: list

    property ChangeListModel rows
    property string note

    spacing: Theme.spacingSmall

    function reveal(path) {
        if (!FileActions.reveal(path))
            AppState.error = AppError.invalidPath(path)
    }

    Text {
        text: "Folders"
        font: Theme.headline
        color: Theme.primary
    }

    Text {
        objectName: "folderNote"
        Layout.fillWidth: true
        visible: list.note !== ""
        text: list.note
        font: Theme.body
        color: Theme.secondary
        wrapMode: Text.Wrap
    }

    Repeater {
        model: list.rows
        delegate: AbstractButton {
            id: line
            required property string title
            required property string detail
            required property string beforeText
            required property string afterText
            required property string changeText
            required property string symbol
            required property string color
            required property real share

            Layout.fillWidth: true
            padding: 4
            Accessible.name: "Show " + title + " in the file manager, " + detail + ", "
                             + beforeText + " to " + afterText + ", " + changeText
            onClicked: list.reveal(detail)

            background: Rectangle {
                radius: Theme.radiusSmall
                color: line.hovered ? Theme.withOpacity(Theme.accent, 0.08) : "transparent"
                FocusRing {
                    shown: line.visualFocus
                    controlRadius: parent.radius
                }
            }

            contentItem: RowLayout {
                spacing: Theme.spacingSmall

                Icon {
                    Layout.preferredWidth: 20
                    symbol: "folder.fill"
                    size: 14
                    color: Theme.blue
                }
                Column {
                    Layout.fillWidth: true
                    Text {
                        width: parent.width
                        text: line.title
                        font: Theme.body
                        color: Theme.primary
                        elide: Text.ElideRight
                    }
                    Text {
                        width: parent.width
                        text: line.detail
                        font: Theme.caption
                        color: Theme.secondary
                        elide: Text.ElideMiddle
                    }
                }
                // The folder's larger size against the largest folder listed.
                Rectangle {
                    Layout.preferredWidth: 80
                    Layout.preferredHeight: 6
                    radius: 3
                    color: Theme.withOpacity(Theme.secondary, 0.15)
                    Rectangle {
                        width: Math.max(2, parent.width * line.share)
                        height: parent.height
                        radius: parent.radius
                        color: Theme.blue
                    }
                }
                Text {
                    Layout.preferredWidth: 150
                    horizontalAlignment: Text.AlignRight
                    text: line.beforeText + "  →  " + line.afterText
                    font: Theme.caption
                    color: Theme.secondary
                }
                ChangeText {
                    Layout.preferredWidth: 110
                    changeText: line.changeText
                    symbol: line.symbol
                    color: line.color
                }
            }
        }
    }
}
