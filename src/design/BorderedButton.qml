import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design

// A secondary action: on the control surface, hairline border, label in the primary colour (red when destructive).
Button {
    id: button

    property string symbol
    property bool destructive: false

    padding: 6
    leftPadding: 12
    rightPadding: 12
    font: Theme.weighted(Theme.body, Font.Medium)
    opacity: enabled ? 1 : 0.45
    // Named by its label here, once: Qt Quick Controls leave a label set before accessibility
    // came on unannounced. A button showing only a symbol is named where it is used.
    Accessible.role: Accessible.Button
    Accessible.name: text

    contentItem: ButtonLabel {
        text: button.text
        symbol: button.symbol
        font: button.font
        spacing: button.spacing
        color: button.destructive ? Theme.red : Theme.primary
    }

    background: Rectangle {
        implicitHeight: 28
        radius: Theme.radiusSmall
        color: button.down ? Theme.controlPressed : (button.hovered ? Theme.controlHovered : Theme.controlBackground)
        border.width: 1
        border.color: Theme.withOpacity(Theme.primary, 0.16)

        FocusRing {
            shown: button.visualFocus
            controlRadius: parent.radius
        }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
