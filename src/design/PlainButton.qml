import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design

// A quiet action: a tinted label, and a faint rounded highlight only under the pointer. Set
// fill to give it a resting background (for example the secondary colour at 15%).
Button {
    id: button

    property string symbol
    property color tint: Theme.accent
    property color fill: "transparent"

    padding: 6
    leftPadding: 10
    rightPadding: 10
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
        color: button.tint
    }

    background: Rectangle {
        implicitHeight: 26
        radius: Theme.radiusSmall
        color: button.fill
        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: button.down ? Theme.pressedOverlay : (button.hovered ? Theme.hoverOverlay : "transparent")
        }

        FocusRing {
            shown: button.visualFocus
            controlRadius: parent.radius
        }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
