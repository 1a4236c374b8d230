import QtQuick
import QtQuick.Controls.Basic
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// The sidebar: where to go (a new scan, the analysis on display, the past scans) and the five
// newest results, one click away.
Rectangle {
    color: Theme.sidebarBackground

    Flickable {
        anchors.fill: parent
        contentHeight: sections.implicitHeight + Theme.spacingXLarge
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        Column {
            id: sections
            x: Theme.spacingMedium - 2
            y: Theme.spacingLarge
            width: parent.width - 2 * x
            spacing: Theme.spacingLarge

            // Up and Down walk the rows as in a sidebar list: a row of a view shows that view at
            // once; a recent scan waits for Return or Space, since opening it replaces the
            // dashboard on display.
            function showRowOf(row) {
                if (row && row.hasOwnProperty("view"))
                    row.clicked()
            }

            FocusSteps {
                id: rowSteps
                within: sections
            }

            Keys.onUpPressed: showRowOf(rowSteps.step(false))
            Keys.onDownPressed: showRowOf(rowSteps.step(true))

            Text {
                leftPadding: Theme.spacingSmall
                text: "Tessarine"
                font: Theme.weighted(Theme.title2, Font.Bold)
                color: Theme.primary
            }

            SidebarSection {
                title: "Analyze"
                SidebarRow {
                    text: "New Scan"
                    symbol: "folder.badge.plus"
                    view: AppState.Landing
                }
                SidebarRow {
                    objectName: "runningScanRow"
                    text: "Scanning..."
                    symbol: "magnifyingglass"
                    view: AppState.Scanning
                    visible: AppState.isScanning
                }
                SidebarRow {
                    objectName: "currentAnalysisRow"
                    text: "Current Analysis"
                    symbol: "chart.pie"
                    view: AppState.Dashboard
                    visible: AppState.hasCurrentResult
                }
            }

            SidebarSection {
                title: "History"
                SidebarRow {
                    text: "Past Scans"
                    symbol: "clock.arrow.circlepath"
                    view: AppState.History
                }
            }

            SidebarSection {
                objectName: "recentSection"
                title: "Recent"
                visible: AppState.scanHistory.count > 0
                Repeater {
                    model: FirstRowsModel {
                        sourceModel: AppState.scanHistory
                        limit: 5
                    }
                    delegate: RecentScanRow {}
                }
            }
        }
    }
}
