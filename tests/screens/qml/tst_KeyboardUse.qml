import QtQuick
import QtTest
import Tessarine.App
import Tessarine.Testing
import Tessarine.Screens
import "ViewSearch.js" as ViewSearch

// What a keyboard user can do on each screen: reach every control with Tab, move through lists
// with the arrows, act with Return and Space. Escape and Return on sheets: DashboardCharts and
// HistoryView.
ScreenTestCase {
    id: testCase

    name: "KeyboardUse"

    Component { id: landingComponent; LandingView { width: testCase.width; height: testCase.height } }
    Component { id: scanningComponent; ScanningView { width: testCase.width; height: testCase.height } }
    Component { id: dashboardComponent; DashboardView { width: testCase.width; height: testCase.height } }
    Component { id: historyComponent; HistoryView { width: testCase.width; height: testCase.height } }
    Component { id: helpComponent; HelpView { width: testCase.width; height: testCase.height } }

    function init() {
        AppState.showFolderPicker = false
    }

    function cards(view) {
        return ViewSearch.withProperty(view, "scans").filter(item => item.hasOwnProperty("rootPath"))
    }

    function history() {
        Fixture.fillHistory(3)
        AppState.currentView = AppState.History
        const view = createTemporaryObject(historyComponent, testCase)
        tryVerify(() => cards(view).length === 3)
        return view
    }

    function historyWithTwoSelected() {
        const view = history()
        const scans = findChild(view, "historyScans")
        scans.toggleSelection(cards(view)[0].result)
        scans.toggleSelection(cards(view)[1].result)
        return view
    }

    // Every control a mouse can use must be in the Tab chain, or inside an item that is (a list
    // or treemap that moves among its parts with the arrows). Sheets count while they are open.
    function test_everyControlIsReachableWithTab_data() {
        return [
            { tag: "landing", show: () => createTemporaryObject(landingComponent, testCase) },
            { tag: "scanning", show: () => {
                Fixture.showProgress("/Users/ann/Projects/src/main.cpp")
                return createTemporaryObject(scanningComponent, testCase)
            } },
            { tag: "dashboard", show: () => {
                Fixture.showFullResult()
                return createTemporaryObject(dashboardComponent, testCase)
            } },
            { tag: "dashboard with folder treemap", show: () => {
                AppState.openResult(Fixture.resultWithTree())
                return createTemporaryObject(dashboardComponent, testCase)
            } },
            { tag: "export sheet", show: () => {
                Fixture.showFullResult()
                const view = createTemporaryObject(dashboardComponent, testCase)
                view.exportSheet.open()
                tryVerify(() => view.exportSheet.opened)
                return view.exportSheet.contentItem
            } },
            { tag: "history", show: historyWithTwoSelected },
            { tag: "comparison and deletion", show: () => {
                const view = historyWithTwoSelected()
                const sheet = findChild(view, "comparisonSheet")
                sheet.open()
                tryVerify(() => sheet.opened)
                compare(Fixture.unreachableControls(sheet.contentItem), [])
                sheet.close()
                const confirmation = findChild(view, "deleteConfirmation")
                confirmation.open()
                tryVerify(() => confirmation.opened)
                return confirmation.contentItem
            } },
            { tag: "help", show: () => createTemporaryObject(helpComponent, testCase) }
        ]
    }

    function test_everyControlIsReachableWithTab(data) {
        const shown = data.show()
        waitForRendering(shown)
        compare(Fixture.unreachableControls(shown), [])
    }

    // Tab to a control below the fold scrolls it into sight.
    function test_dashboardScrollsToTheFocusedControl() {
        Fixture.showFullResult()
        const view = createTemporaryObject(dashboardComponent, testCase)
        const search = findChild(view, "largestFilesSearch")
        verify(search.mapToItem(view, 0, 0).y > view.height)
        search.forceActiveFocus(Qt.TabFocusReason)
        const top = search.mapToItem(view, 0, 0).y
        verify(top > 0 && top + search.height < view.height, "search field at " + top)
    }

    // The list is one Tab stop: the arrows move between cards, Space selects for a comparison,
    // Return opens the scan.
    function test_historyListByKeys() {
        const view = history()
        const list = findChild(view, "historyList")
        list.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Up)
        compare(list.currentIndex, 1)
        keyClick(Qt.Key_Space)
        compare(cards(view).filter(card => card.selected).map(card => card.rootName), ["Scan 2"])
        keyClick(Qt.Key_Return)
        compare(AppState.currentResult.rootName, "Scan 2")
        compare(AppState.currentView, AppState.Dashboard)
    }
}
