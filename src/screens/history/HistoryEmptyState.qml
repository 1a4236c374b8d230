import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// What the history shows before the first scan is saved.
Item {
    ColumnLayout {
        anchors.centerIn: parent
        spacing: Theme.spacingLarge
        Accessible.role: Accessible.Grouping
        Accessible.name: "No Scan History"
        Accessible.description: "Your scan history will appear here. Start by analyzing a folder."

        Icon {
            Layout.alignment: Qt.AlignHCenter
            symbol: "clock.arrow.circlepath"
            size: 60
            color: Theme.secondary
        }
        Text {
            Layout.alignment: Qt.AlignHCenter
            text: "No Scan History"
            font: Theme.weighted(Theme.title2, Font.Medium)
            color: Theme.primary
        }
        Text {
            Layout.alignment: Qt.AlignHCenter
            text: "Your scan history will appear here.\nStart by analyzing a folder."
            font: Theme.subheadline
            color: Theme.secondary
            horizontalAlignment: Text.AlignHCenter
        }
        ProminentButton {
            Layout.alignment: Qt.AlignHCenter
            text: "New Scan"
            symbol: "folder.badge.plus"
            onClicked: AppState.showFolderPicker = true
        }
    }
}
