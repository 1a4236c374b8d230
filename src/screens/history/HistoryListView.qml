import QtQuick
import QtQuick.Controls.Basic
import Tessarine.App

// The stored scans, newest first; choosing one puts it on the dashboard.
Rectangle {
    color: Theme.contentBackground

    SectionHeader {
        id: header
        x: Theme.spacingSection
        y: Theme.spacingSection
        title: "Past Scans"
        symbol: "clock.arrow.circlepath"
        font: Theme.weighted(Theme.title, Font.Bold)
    }

    Card {
        anchors.fill: parent
        anchors.margins: Theme.spacingSection
        anchors.topMargin: header.y + header.height + Theme.spacingLarge
        visible: AppState.scanHistory.count > 0

        ListView {
            id: list
            anchors.fill: parent
            anchors.margins: 1
            clip: true
            model: AppState.scanHistory
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}
            delegate: HistoryRow {
                width: list.width
            }
        }
    }

    Text {
        anchors.centerIn: parent
        visible: AppState.scanHistory.count === 0
        text: "No scans yet"
        font: Theme.title3
        color: Theme.secondary
    }
}
