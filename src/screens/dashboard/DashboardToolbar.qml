import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design

// The dashboard's actions, at the trailing end of the bar above its content.
Rectangle {
    id: toolbar

    signal exportRequested

    implicitHeight: 48
    color: Theme.controlBackground

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.separator
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.spacingLarge
        anchors.rightMargin: Theme.spacingLarge
        spacing: Theme.spacingSmall

        Item { Layout.fillWidth: true }

        BorderedButton {
            objectName: "exportToolbarButton"
            text: "Export"
            symbol: "square.and.arrow.up"
            onClicked: toolbar.exportRequested()
        }

        BorderedButton {
            objectName: "newScanButton"
            text: "New Scan"
            symbol: "folder.badge.plus"
            onClicked: AppState.showFolderPicker = true
        }
    }
}
