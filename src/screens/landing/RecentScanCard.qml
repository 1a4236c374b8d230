import QtQuick
import QtQuick.Controls.Basic
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// One of the latest scans on the start screen; a click shows it on the dashboard.
AbstractButton {
    id: card

    required property scanSummary summary

    implicitWidth: 210
    padding: Theme.spacingMedium
    Accessible.name: "Open scan of " + (summary.rootName !== "" ? summary.rootName : summary.rootPath)

    onClicked: AppState.openStoredScan(summary)

    background: Rectangle {
        radius: Theme.radiusButton
        color: card.down ? Theme.cardPressed : Theme.controlBackground
        border.width: 1
        border.color: card.hovered ? Theme.withOpacity(Theme.accent, 0.4) : Theme.separator

        FocusRing {
            shown: card.visualFocus
            controlRadius: parent.radius
        }
    }

    contentItem: Column {
        spacing: Theme.spacingSmall

        Row {
            width: parent.width
            spacing: 6

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "folder.fill"
                color: Theme.blue
            }

            Text {
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - 22
                text: card.summary.rootName
                font: Theme.headline
                color: Theme.primary
                elide: Text.ElideMiddle
            }
        }

        Row {
            spacing: Theme.spacingMedium

            DetailLabel {
                symbol: "internaldrive"
                text: Format.byteCount(card.summary.totalSize)
            }

            DetailLabel {
                symbol: "clock"
                text: Format.relativeDate(card.summary.knownScanDate, Format.now)
            }
        }
    }
}
