import QtQuick
import Tessarine.Design

// The symbol-and-text content shared by the application's buttons, centred in whatever width the
// button gives it.
Item {
    id: label

    property string text
    property string symbol
    property color color: Theme.primary
    property font font: Theme.body
    // Between the symbol and the text.
    property alias spacing: content.spacing

    implicitWidth: content.implicitWidth
    implicitHeight: content.implicitHeight

    Row {
        id: content
        anchors.centerIn: parent
        spacing: 6

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            visible: label.symbol !== ""
            symbol: label.symbol
            size: label.font.pixelSize + 3
            color: label.color
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: label.text
            font: label.font
            color: label.color
        }
    }
}
