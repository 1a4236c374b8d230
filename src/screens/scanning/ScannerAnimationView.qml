import QtQuick
import Tessarine.Design
import Tessarine.Screens

// The spinning ring with the phase's symbol and the item count inside, and the phase under it.
Column {
    id: view

    required property scanStatus status
    required property bool hasProgress
    required property real rotationAngle

    // The ring is drawn; what it says is read as one status.
    Accessible.role: Accessible.Grouping
    Accessible.name: status.phaseTitle + (hasProgress ? ", " + status.itemCount + " items" : "")
    Accessible.description: status.phaseDescription
                            + (status.currentName === "" ? "" : ", " + status.currentName)

    spacing: Theme.spacingSmall

    Item {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 160
        height: 160

        ScannerRing { anchors.fill: parent }

        ScannerArc {
            anchors.fill: parent
            rotation: view.rotationAngle
        }

        Column {
            anchors.centerIn: parent
            spacing: 2

            GradientIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: view.status.phaseSymbol
                size: 28
            }

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: view.hasProgress
                text: view.status.itemCount
                font: Theme.tabularDigits(Theme.title3, Font.Bold)
                color: Theme.primary
            }

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: view.hasProgress
                text: "items"
                font: Theme.extraSmall
                color: Theme.secondary
            }
        }
    }

    Item {
        width: 1
        height: Theme.spacingTiny
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: view.status.phaseTitle
        font: Theme.headline
        color: Theme.primary
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: view.status.phaseDescription
        font: Theme.caption
        color: view.status.waiting ? Theme.orange : Theme.secondary
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(implicitWidth, 280)
        visible: view.status.currentName !== ""
        text: view.status.currentName
        font: Theme.monospaced(Theme.caption)
        color: Theme.tertiary
        elide: Text.ElideMiddle
        maximumLineCount: 1
    }
}
