import QtQuick
import Tessarine.Design

// The figures of the depth level under the pointer, on a purple tint.
Rectangle {
    id: strip

    // The picked bar's slot, carrying its level's figures.
    required property Item level

    implicitHeight: 36
    radius: Theme.radiusMedium
    color: Theme.withOpacity(Theme.purple, 0.1)

    Row {
        anchors.verticalCenter: parent.verticalCenter
        x: 12
        spacing: Theme.spacingLarge

        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: strip.level ? "Level " + strip.level.depth : ""
            font: Theme.weighted(Theme.subheadline, Font.Medium)
            color: Theme.secondary
        }

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 1
            height: 20
            color: Theme.separator
        }

        ChartFact {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "doc"
            text: strip.level ? Format.count(strip.level.fileCount) + " files" : ""
        }

        ChartFact {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "folder"
            text: strip.level ? Format.count(strip.level.folderCount) + " folders" : ""
        }

        ChartFact {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "internaldrive"
            text: strip.level ? Format.byteCount(strip.level.totalSize) : ""
        }
    }
}
