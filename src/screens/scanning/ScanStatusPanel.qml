import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// The left panel of the scanning screen: ring, counters, rates and the Cancel button.
Rectangle {
    id: panel

    required property scanStatus status
    required property bool hasProgress
    required property real rotationAngle

    color: Theme.withOpacity(Theme.controlBackground, 0.5)

    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 48, 320)
        spacing: 20

        ScannerAnimationView {
            Layout.alignment: Qt.AlignHCenter
            status: panel.status
            hasProgress: panel.hasProgress
            rotationAngle: panel.rotationAngle
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingMedium

            ScanCounterBox {
                Layout.fillWidth: true
                count: panel.status.files
                label: "Files"
                icon: "doc.fill"
                tint: Theme.blue
            }

            ScanCounterBox {
                Layout.fillWidth: true
                count: panel.status.folders
                label: "Folders"
                icon: "folder.fill"
                tint: Theme.orange
            }
        }

        RowLayout {
            Layout.fillWidth: true

            ScanFigureLabel {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                icon: "internaldrive.fill"
                color: Theme.purple
                value: panel.status.dataScanned
                caption: "data scanned"
                large: true
            }

            ScanFigureLabel {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                value: panel.status.fileRate
                valueColor: Theme.green
                caption: "items/sec"
                large: true
            }
        }

        RowLayout {
            Layout.fillWidth: true

            ScanFigureLabel {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                icon: "clock.fill"
                color: Theme.cyan
                value: panel.status.elapsed
                caption: "elapsed"
            }

            ScanFigureLabel {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                icon: "arrow.down.circle.fill"
                color: Theme.green
                value: panel.status.throughput
                caption: "throughput"
            }

            ScanFigureLabel {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                icon: "hourglass"
                color: Theme.yellow
                value: panel.status.remaining
                caption: "remaining"
            }
        }

        PlainButton {
            objectName: "cancelButton"
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: Theme.spacingSmall
            text: "Cancel"
            symbol: "xmark.circle.fill"
            tint: Theme.primary
            fill: Theme.withOpacity(Theme.secondary, 0.15)
            leftPadding: 18
            rightPadding: 18
            onClicked: AppState.cancelScan()
        }
    }
}
