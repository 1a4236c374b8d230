import QtQuick
import Tessarine.Design
import Tessarine.Screens

// A numbered step: the number on an accent circle, then what to do.
Item {
    id: step

    property int number
    property string text

    Accessible.role: Accessible.ListItem
    Accessible.name: "Step " + number + ", " + text

    width: parent ? parent.width : 0
    implicitHeight: Math.max(circle.height, label.implicitHeight)

    Rectangle {
        id: circle
        width: 26
        height: 26
        radius: 13
        color: Theme.accent
        Text {
            anchors.centerIn: parent
            text: step.number
            font: Qt.font({ family: Theme.fontFamily, pixelSize: 14, weight: Font.Bold })
            color: Theme.labelOnAccent
        }
    }

    Text {
        id: label
        anchors.left: circle.right
        anchors.leftMargin: Theme.spacingMedium
        anchors.right: parent.right
        anchors.verticalCenter: circle.verticalCenter
        text: step.text
        wrapMode: Text.Wrap
        font: Theme.body
        color: Theme.primary
    }
}
