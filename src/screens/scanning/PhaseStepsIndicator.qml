import QtQuick
import Tessarine.Design
import Tessarine.Screens

// Five dots from "Init" to "Done": green behind the scan, blue where it is, faint ahead.
Row {
    id: indicator

    // The current phase's position in the scan's phase order.
    property alias phase: steps.phase

    spacing: 4

    Repeater {
        model: PhaseStepsModel { id: steps }

        Row {
            required property int index
            required property string label
            required property bool completed
            required property bool current

            spacing: 4
            Accessible.role: Accessible.ListItem
            Accessible.name: label + (completed ? ", done" : (current ? ", in progress" : ""))

            Column {
                spacing: 3

                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: 8
                    height: 8
                    radius: 4
                    color: completed ? Theme.green
                                     : (current ? Theme.blue : Theme.withOpacity(Theme.secondary, 0.3))
                }

                Text {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: label
                    font: Theme.extraSmall
                    color: current ? Theme.primary : Theme.secondary
                }
            }

            Rectangle {
                y: 4
                visible: index < 4
                width: 12
                height: 1
                color: completed ? Theme.green : Theme.withOpacity(Theme.secondary, 0.3)
            }
        }
    }
}
