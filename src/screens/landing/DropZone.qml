import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design

// The dashed target that invites a dropped folder; clicking it opens the folder picker instead.
AbstractButton {
    id: zone

    // True while a drag carrying file locations hovers over the screen.
    property bool targeted: false

    implicitWidth: 480
    implicitHeight: 190
    Accessible.name: "Drop a folder here"

    background: Canvas {
        id: border

        readonly property color stroke: zone.targeted ? Theme.accent
                                                      : Theme.withOpacity(Theme.secondary, zone.hovered ? 0.45 : 0.3)
        readonly property color fill: zone.targeted ? Theme.withOpacity(Theme.accent, 0.1) : "transparent"

        onStrokeChanged: requestPaint()
        onFillChanged: requestPaint()
        onWidthChanged: requestPaint()
        onHeightChanged: requestPaint()

        onPaint: {
            const context = getContext("2d")
            context.reset()
            context.beginPath()
            context.roundedRect(1, 1, width - 2, height - 2, Theme.radiusLarge, Theme.radiusLarge)
            context.fillStyle = fill
            context.fill()
            context.lineWidth = 2
            context.setLineDash([5, 5])
            context.strokeStyle = stroke
            context.stroke()
        }

        FocusRing {
            shown: zone.visualFocus
            controlRadius: Theme.radiusLarge
        }
    }

    contentItem: Item {
        Column {
            anchors.centerIn: parent
            spacing: Theme.spacingMedium

            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: "folder.badge.plus"
                size: 48
                color: zone.targeted ? Theme.blue : Theme.secondary
            }

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "Drop a folder here"
                font: Theme.title2
                color: zone.targeted ? Theme.primary : Theme.secondary
            }
        }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
