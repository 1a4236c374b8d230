import QtQuick
import Tessarine.App
import Tessarine.Design

// Covers the window while a folder is dragged over it, so the user sees that letting go starts a
// scan. Fades in and out; the panel settles from slightly smaller.
Rectangle {
    id: overlay

    property bool shown
    readonly property bool startsNewScan: AppState.currentView === AppState.Dashboard

    color: Theme.withOpacity(Theme.accent, 0.1)
    opacity: shown ? 1 : 0
    visible: opacity > 0

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.quickDuration
            easing.type: Easing.InOutQuad
        }
    }

    SoftShadow {
        anchors.fill: panel
        radius: panel.radius
        spread: 10
        strength: 0.05
        offsetY: 4
        scale: panel.scale
    }

    Rectangle {
        id: panel
        anchors.centerIn: parent
        width: content.implicitWidth + 2 * Theme.spacingHuge
        height: content.implicitHeight + 2 * Theme.spacingHuge
        radius: Theme.radiusLarge
        color: Theme.material
        border.width: 1
        border.color: Theme.withOpacity(Theme.accent, 0.25)
        scale: overlay.shown ? 1 : 0.94

        Behavior on scale {
            NumberAnimation {
                duration: Theme.quickDuration
                easing.type: Easing.InOutQuad
            }
        }

        Column {
            id: content
            anchors.centerIn: parent
            spacing: Theme.spacingLarge

            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: "folder.badge.plus"
                size: 64
                color: Theme.accent
            }

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "Drop folder to analyze"
                font: Theme.weighted(Theme.title2, Font.DemiBold)
                color: Theme.primary
            }

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: overlay.startsNewScan
                text: "This will start a new scan"
                font: Theme.subheadline
                color: Theme.secondary
            }
        }
    }
}
