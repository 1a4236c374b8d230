import QtQuick
import Tessarine.Design
import Tessarine.Charts

// The figures of the folder under the pointer, or of the folder shown when none is.
Rectangle {
    id: bar

    property folderSummary details

    implicitHeight: figures.implicitHeight + 16
    // A narrow card drops what does not fit at the end of the row.
    clip: true
    radius: Theme.radiusMedium
    color: Theme.withOpacity(Theme.secondary, 0.1)

    Row {
        id: figures

        x: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacingLarge

        Row {
            anchors.verticalCenter: parent.verticalCenter
            spacing: 4

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "folder.fill"
                size: Theme.caption.pixelSize + 2
                color: Theme.named(bar.details.colorName)
            }

            Text {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, 180)
                elide: Text.ElideMiddle
                text: bar.details.name
                font: Theme.weighted(Theme.caption, Font.Medium)
                color: Theme.secondary
            }
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 1
            height: 16
            color: Theme.separator
        }

        CaptionLabel {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "internaldrive"
            text: Format.byteCount(bar.details.totalSize)
        }

        CaptionLabel {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "doc"
            text: Format.count(bar.details.fileCount) + " files"
        }

        CaptionLabel {
            anchors.verticalCenter: parent.verticalCenter
            visible: bar.details.subfolderCount > 0
            symbol: "folder"
            text: Format.count(bar.details.subfolderCount) + " subfolders"
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: bar.details.subfolderCount > 0
            text: "Click to drill down"
            font: Theme.extraSmall
            color: Theme.tertiary
        }
    }
}
