import QtQuick
import QtQuick.Controls.Basic
import Tessarine.App

// One stored scan in the history list: its folder, where it is, when it was scanned, its size.
ItemDelegate {
    id: row

    required property analysisResult result
    required property int index
    required property string rootName
    required property string rootPath
    required property double totalSize
    required property double fileCount
    required property date scanDate

    implicitHeight: 56
    leftPadding: Theme.spacingLarge
    rightPadding: Theme.spacingLarge

    onClicked: AppState.openResult(result)

    contentItem: Item {
        Icon {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            symbol: "folder.fill"
            size: 22
            color: Theme.blue
        }

        Column {
            anchors.left: icon.right
            anchors.leftMargin: Theme.spacingMedium
            anchors.right: figures.left
            anchors.rightMargin: Theme.spacingLarge
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2
            Text {
                width: parent.width
                text: row.rootName
                font: Theme.headline
                color: Theme.primary
                elide: Text.ElideRight
                maximumLineCount: 1
            }
            Text {
                width: parent.width
                text: row.rootPath
                font: Theme.subheadline
                color: Theme.secondary
                elide: Text.ElideMiddle
                maximumLineCount: 1
            }
        }

        Column {
            id: figures
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2
            Text {
                anchors.right: parent.right
                text: Format.byteCount(row.totalSize)
                font: Theme.weighted(Theme.body, Font.DemiBold)
                color: Theme.primary
            }
            Text {
                anchors.right: parent.right
                text: Format.count(row.fileCount) + " files · " + Format.absoluteDate(row.scanDate)
                font: Theme.subheadline
                color: Theme.secondary
            }
        }
    }

    background: Rectangle {
        color: row.down ? Qt.rgba(0, 0, 0, 0.06) : (row.hovered ? Qt.rgba(0, 0, 0, 0.03) : "transparent")
        Rectangle {
            visible: row.index > 0
            anchors.top: parent.top
            anchors.left: parent.left
            anchors.leftMargin: Theme.spacingLarge
            anchors.right: parent.right
            height: 1
            color: Theme.separator
        }
    }
}
