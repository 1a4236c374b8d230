import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// Every saved scan: searched, sorted, opened, selected for a comparison, deleted; with the size
// trend of a folder scanned more than once above the list.
Rectangle {
    id: view

    color: Theme.contentBackground

    HistoryListModel {
        id: historyScans
        objectName: "historyScans"
        history: AppState.scanHistory
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.spacingSection
        spacing: Theme.spacingLarge

        HistoryHeader {
            Layout.fillWidth: true
            scans: historyScans
            // Only a comparison reads the two whole results.
            onCompareRequested: {
                comparison.first = AppState.storedResult(historyScans.comparedFirst)
                comparison.second = AppState.storedResult(historyScans.comparedSecond)
                comparison.open()
            }
            onDeleteRequested: deleteConfirmation.open()
        }

        HistoryFilterBar {
            Layout.fillWidth: true
            scans: historyScans
        }

        HistoryEmptyState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: AppState.scanHistory.count === 0
        }

        ListView {
            id: list
            objectName: "historyList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: AppState.scanHistory.count > 0
            clip: true
            spacing: Theme.spacingMedium
            model: historyScans
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}

            // One Tab stop for the whole list: Up and Down move between the cards (the list's own
            // key navigation), Return opens the current scan as a click does, Space selects it for
            // a comparison as its circle does, and the menu key opens its context menu.
            activeFocusOnTab: true
            Keys.onReturnPressed: openCurrent()
            Keys.onEnterPressed: openCurrent()
            Keys.onSpacePressed: if (currentItem) historyScans.toggleSelection(currentItem.summary)
            Keys.onMenuPressed: if (currentItem) scanMenu.openFor(currentItem.summary, currentItem.selected)

            function openCurrent() {
                if (currentItem)
                    AppState.openStoredScan(currentItem.summary)
            }

            header: Item {
                width: list.width
                height: trend.visible ? trend.height + Theme.spacingMedium : 0
                TrendChartSection {
                    id: trend
                    width: parent.width
                    // Nothing at all when the search leaves no folder with two scans.
                    visible: historyScans.showsTrend && !historyScans.trend.isEmpty
                    series: historyScans.trend
                }
            }

            delegate: HistoryScanCard {
                width: list.width
                scans: historyScans
                onMenuRequested: (summary, selected) => scanMenu.openFor(summary, selected)
            }
        }
    }

    // Made on the first right-click: a menu costs more to create than the rest of the screen.
    Loader {
        id: scanMenu

        function openFor(summary, selected) {
            active = true
            item.openFor(summary, selected)
        }

        active: false
        sourceComponent: ScanContextMenu {
            scans: historyScans
        }
    }

    ComparisonSheet {
        id: comparison
    }

    DeleteConfirmation {
        id: deleteConfirmation
        selectedCount: historyScans.selectedCount
        onAccepted: {
            for (const summary of historyScans.selectedScans())
                AppState.deleteScan(summary)
            historyScans.clearSelection()
        }
    }
}
