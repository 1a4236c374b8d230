import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// The share of the estimated items done, as a percentage and a gradient bar.
ColumnLayout {
    id: bar

    // From 0 to 1.
    property real percentage: 0

    spacing: 6
    Accessible.role: Accessible.ProgressBar
    Accessible.name: "Progress, " + Math.floor(percentage * 100) + " percent"

    RowLayout {
        Layout.fillWidth: true

        Text {
            text: "Progress"
            font: Theme.caption
            color: Theme.secondary
        }

        Item { Layout.fillWidth: true }

        Text {
            text: Math.floor(bar.percentage * 100) + "%"
            font: Theme.tabularDigits(Theme.caption, Font.Medium)
            color: Theme.blue
        }
    }

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: 6
        radius: 4
        color: Theme.withOpacity(Theme.secondary, 0.2)

        Rectangle {
            width: parent.width * bar.percentage
            height: parent.height
            radius: parent.radius
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: Theme.blue }
                GradientStop { position: 1; color: Theme.purple }
            }

            Behavior on width {
                NumberAnimation {
                    duration: Theme.standardDuration
                    easing.type: Theme.standardEasing
                }
            }
        }
    }
}
