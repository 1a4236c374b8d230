import QtQuick
import QtQuick.Controls.Basic
import Tessarine.App
import Tessarine.Design

// One of the newest results in the sidebar: its folder's name and size. Clicking it puts the
// result on the dashboard.
AbstractButton {
    id: row

    required property analysisResult result
    required property string folderName
    required property double totalSize

    objectName: "recentScanRow"
    width: parent ? parent.width : implicitWidth
    leftPadding: Theme.spacingSmall + 2
    rightPadding: Theme.spacingSmall
    topPadding: 5
    bottomPadding: 5
    text: folderName
    Accessible.name: "Open scan of " + (folderName !== "" ? folderName : result.rootPath)

    onClicked: AppState.openResult(result)

    contentItem: Column {
        spacing: 1
        Text {
            width: parent.width
            text: row.folderName
            font: Theme.weighted(Theme.subheadline, Font.Medium)
            color: Theme.primary
            elide: Text.ElideMiddle
            maximumLineCount: 1
        }
        Text {
            text: Format.byteCount(row.totalSize)
            font: Theme.caption
            color: Theme.secondary
        }
    }

    background: Rectangle {
        radius: Theme.radiusSmall
        color: row.down ? Theme.pressedOverlay : (row.hovered ? Theme.sidebarSelection : "transparent")

        FocusRing {
            shown: row.visualFocus
            controlRadius: parent.radius
        }
    }
}
