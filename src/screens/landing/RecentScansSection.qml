import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// The five newest scans of the history in a horizontal strip, with the way to all of them.
ColumnLayout {
    spacing: Theme.spacingMedium

    Rectangle {
        Layout.fillWidth: true
        Layout.bottomMargin: Theme.spacingSmall
        implicitHeight: 1
        color: Theme.separator
    }

    RowLayout {
        Layout.fillWidth: true

        Text {
            text: "Recent Scans"
            font: Theme.headline
            color: Theme.primary
        }

        Item { Layout.fillWidth: true }

        PlainButton {
            text: "View All"
            tint: Theme.blue
            onClicked: AppState.currentView = AppState.History
        }
    }

    ListView {
        id: strip

        objectName: "recentStrip"

        Layout.fillWidth: true
        implicitHeight: contentItem.childrenRect.height
        orientation: ListView.Horizontal
        spacing: Theme.spacingMedium
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: FirstRowsModel {
            limit: 5
            sourceModel: AppState.scanHistory
        }
        delegate: RecentScanCard {}
    }
}
