import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Charts
import Tessarine.Screens

// One finished result: its identity with Rescan, the summary cards, the charts and tables of the
// result, and the insights, in one vertical scroll under the toolbar.
Rectangle {
    id: dashboard

    readonly property analysisResult result: AppState.currentResult
    // Two cards side by side need this much room; below it every row becomes one column.
    readonly property real twoCardWidth: 2 * 400 + Theme.spacingLarge
    readonly property bool twoColumns: content.width >= twoCardWidth
    readonly property alias categorySelection: categorySelection
    readonly property alias exportSheet: exportSheet

    color: Theme.contentBackground

    CategorySelection { id: categorySelection }

    // Whether the keys brought the focus to the item. Controls say so themselves, text fields
    // through the reason of their focus; any other item takes the focus from Tab only.
    function focusedByKeys(item) {
        if (item.visualFocus !== undefined)
            return item.visualFocus
        if (item.focusReason !== undefined)
            return item.focusReason === Qt.TabFocusReason || item.focusReason === Qt.BacktabFocusReason
                   || item.focusReason === Qt.ShortcutFocusReason
        return item.activeFocusOnTab
    }

    // Tab may land on a control below the fold or above it: the scroll follows the keyboard, so
    // the focused control and its ring are always in sight. A control focused by a click is
    // already in sight and stays where it is: a page that moved under the pointer would send the
    // next click to another control.
    function scrollToShow(item) {
        if (!item || !focusedByKeys(item) || !contentFocus.contains(item))
            return
        const flickable = scroller.contentItem
        const top = item.mapToItem(content, 0, 0).y
        const margin = Theme.spacingSection
        let y = flickable.contentY
        if (top - margin < y)
            y = top - margin
        else if (top + item.height + margin > y + flickable.height)
            y = top + item.height + margin - flickable.height
        flickable.contentY = Math.max(0, Math.min(y, flickable.contentHeight - flickable.height))
    }

    FocusSteps {
        id: contentFocus
        within: content
    }

    Connections {
        target: dashboard.Window.window
        function onActiveFocusItemChanged() {
            dashboard.scrollToShow(dashboard.Window.activeFocusItem)
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        DashboardToolbar {
            Layout.fillWidth: true
            onExportRequested: exportSheet.open()
        }

        ScrollView {
            id: scroller

            objectName: "dashboardScroller"
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: availableWidth

            ColumnLayout {
                id: content

                x: Theme.spacingSection
                width: scroller.availableWidth - 2 * Theme.spacingSection
                spacing: Theme.spacingSection

                DashboardHeader {
                    Layout.fillWidth: true
                    Layout.topMargin: Theme.spacingSection
                    result: dashboard.result
                }

                SummaryCardsView {
                    Layout.fillWidth: true
                    result: dashboard.result
                }

                GridLayout {
                    Layout.fillWidth: true
                    columns: dashboard.twoColumns ? 2 : 1
                    columnSpacing: Theme.spacingLarge
                    rowSpacing: Theme.spacingLarge

                    CategoryChart {
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        Layout.preferredWidth: 1
                        Layout.minimumWidth: 400
                        result: dashboard.result
                        selection: categorySelection
                    }

                    TreeMapView {
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        Layout.preferredWidth: 1
                        Layout.minimumWidth: 400
                        Layout.minimumHeight: 350
                        result: dashboard.result
                        selection: categorySelection
                    }
                }

                FolderAnalysisSection { Layout.fillWidth: true; result: dashboard.result }

                LargestFilesSection {
                    Layout.fillWidth: true
                    result: dashboard.result
                }

                GridLayout {
                    Layout.fillWidth: true
                    columns: dashboard.twoColumns ? 2 : 1
                    columnSpacing: Theme.spacingLarge
                    rowSpacing: Theme.spacingLarge

                    DepthChart {
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        Layout.preferredWidth: 1
                        Layout.minimumWidth: 350
                        result: dashboard.result
                    }

                    ExtensionBreakdownView {
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        Layout.preferredWidth: 1
                        Layout.minimumWidth: 350
                        result: dashboard.result
                    }
                }

                InsightsSection {
                    Layout.fillWidth: true
                    Layout.bottomMargin: Theme.spacingSection
                    result: dashboard.result
                }
            }
        }
    }

    ExportSheet {
        id: exportSheet

        objectName: "exportSheet"
        result: dashboard.result
    }
}
