import QtQuick
import Tessarine.Design
import Tessarine.Screens

// A key as it is printed on the keyboard.
Rectangle {
    property alias text: label.text

    implicitWidth: Math.max(24, label.implicitWidth + 12)
    implicitHeight: 22
    radius: 4
    color: Theme.withOpacity(Theme.secondary, 0.2)

    Text {
        id: label
        anchors.centerIn: parent
        font: Theme.monospaced(Qt.font({ pixelSize: 12 }), Font.Medium)
        color: Theme.primary
    }
}
