import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design

// One option of the Settings window: its name over a one-line explanation, and a switch at the
// trailing side. The whole row takes the click; Space toggles it from the keyboard.
Switch {
    id: toggle

    required property string explanation

    padding: Theme.spacingMedium
    spacing: Theme.spacingLarge
    font: Theme.weighted(Theme.body, Font.Medium)
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.description: explanation

    indicator: Rectangle {
        x: toggle.width - width - toggle.rightPadding
        y: (toggle.height - height) / 2
        implicitWidth: 36
        implicitHeight: 20
        radius: height / 2
        color: toggle.checked ? Theme.accent : Theme.withOpacity(Theme.secondary, 0.3)

        Rectangle {
            x: toggle.checked ? parent.width - width - 2 : 2
            y: 2
            width: parent.height - 4
            height: width
            radius: width / 2
            color: Theme.labelOnAccent

            Behavior on x {
                NumberAnimation { duration: Theme.quickDuration; easing.type: Theme.standardEasing }
            }
        }

        FocusRing {
            shown: toggle.visualFocus
            controlRadius: parent.radius
        }
    }

    contentItem: Column {
        rightPadding: toggle.indicator.width + toggle.spacing
        spacing: 2

        Text {
            width: parent.width - parent.rightPadding
            text: toggle.text
            font: toggle.font
            color: Theme.primary
            elide: Text.ElideRight
        }

        Text {
            width: parent.width - parent.rightPadding
            text: toggle.explanation
            font: Theme.callout
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
    }

    background: Rectangle {
        radius: Theme.radiusMedium
        color: toggle.down ? Theme.pressedOverlay : (toggle.hovered ? Theme.hoverOverlay : "transparent")
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
