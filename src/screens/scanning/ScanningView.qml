import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// What the window shows while a scan runs: the status panel with the spinning ring, counters and
// Cancel on the left, the live details and the activity log on the right.
Rectangle {
    id: scanning

    // Angle of the ring's spinning arc; one turn every two seconds for as long as the screen lives.
    property real rotationAngle: 0

    color: Theme.windowBackground

    LiveScanFigures {
        id: figures

        progress: AppState.scanProgress
        hasProgress: AppState.hasScanProgress
    }

    ActivityLogModel {
        id: activityLog

        currentPath: AppState.scanProgress.currentPath
    }

    Timer {
        interval: 1000
        repeat: true
        running: true
        onTriggered: figures.tick()
    }

    // The software renderer (machines without a GPU) draws every frame of the spin on the
    // processor, beside the scan that wants the same cores; there the ring turns in 30 steps a
    // second, still smooth to the eye, instead of at every frame of the display.
    readonly property bool stepsSpin: GraphicsInfo.api === GraphicsInfo.Software
    readonly property int turnDuration: 2000

    NumberAnimation on rotationAngle {
        from: 0
        to: 360
        duration: scanning.turnDuration
        loops: Animation.Infinite
        running: !scanning.stepsSpin
    }

    Timer {
        interval: 33
        repeat: true
        running: scanning.stepsSpin
        onTriggered: scanning.rotationAngle = (scanning.rotationAngle + 360 * interval / scanning.turnDuration) % 360
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        ScanStatusPanel {
            Layout.preferredWidth: 380
            Layout.fillHeight: true
            status: figures.status
            hasProgress: AppState.hasScanProgress
            rotationAngle: scanning.rotationAngle
        }

        Rectangle {
            Layout.fillHeight: true
            implicitWidth: 1
            color: Theme.separator
        }

        ScanDetailsPanel {
            Layout.fillWidth: true
            Layout.fillHeight: true
            figures: figures
            activityLog: activityLog
            progress: AppState.scanProgress
            hasProgress: AppState.hasScanProgress
        }
    }
}
