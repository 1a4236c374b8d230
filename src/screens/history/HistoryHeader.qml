import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// The title with how many scans are saved, and the actions on the selection and a new scan.
RowLayout {
    id: header

    required property HistoryListModel scans

    signal compareRequested
    signal deleteRequested

    spacing: Theme.spacingSmall

    Column {
        Layout.fillWidth: true
        spacing: 2
        Accessible.role: Accessible.Heading
        Accessible.name: "Scan History, " + AppState.scanHistory.count + " scans saved"
        Text {
            text: "Scan History"
            font: Theme.weighted(Theme.title2, Font.Bold)
            color: Theme.primary
        }
        Text {
            objectName: "savedCount"
            text: AppState.scanHistory.count + " scans saved"
            font: Theme.subheadline
            color: Theme.secondary
        }
    }

    BorderedButton {
        objectName: "compareButton"
        visible: header.scans.canCompare
        text: "Compare"
        symbol: "arrow.left.arrow.right"
        onClicked: header.compareRequested()
    }

    BorderedButton {
        objectName: "deleteButton"
        visible: header.scans.selectedCount > 0
        text: "Delete"
        symbol: "trash"
        destructive: true
        onClicked: header.deleteRequested()
    }

    ProminentButton {
        text: "New Scan"
        symbol: "plus"
        onClicked: AppState.showFolderPicker = true
    }
}
