import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design

// The main action of a screen: white label on the blue-to-purple gradient.
Button {
    id: button

    property string symbol

    padding: 10
    leftPadding: 20
    rightPadding: 20
    font: Theme.weighted(Theme.body, Font.DemiBold)
    opacity: enabled ? 1 : 0.45
    // Named by its label here, once: Qt Quick Controls leave a label set before accessibility
    // came on unannounced. A button showing only a symbol is named where it is used.
    Accessible.role: Accessible.Button
    Accessible.name: text

    contentItem: ButtonLabel {
        text: button.text
        symbol: button.symbol
        font: button.font
        color: Theme.labelOnAccent
    }

    background: Rectangle {
        implicitHeight: 36
        radius: Theme.radiusButton
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: Theme.blue }
            GradientStop { position: 1; color: Theme.purple }
        }

        // Darkens on press and lightens on hover without a second gradient.
        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: button.down ? Qt.rgba(0, 0, 0, 0.15) : (button.hovered ? Qt.rgba(1, 1, 1, 0.1) : "transparent")
        }

        FocusRing {
            shown: button.visualFocus
            controlRadius: parent.radius
        }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
