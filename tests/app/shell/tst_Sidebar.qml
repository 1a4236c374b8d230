import QtQuick
import QtTest
import Tessarine
import Tessarine.App
import Tessarine.Testing
import "../../screens/qml/ViewSearch.js" as ViewSearch

TestCase {
    id: testCase

    name: "Sidebar"
    width: 250
    height: 800
    // Hover, drags and shortcuts reach only items in a shown window.
    visible: true
    when: windowShown

    Component {
        id: sidebarComponent
        SidebarView {
            width: testCase.width
            height: testCase.height
        }
    }

    function recentRows(sidebar) {
        return ViewSearch.visibleItems(sidebar, item => item.objectName === "recentScanRow")
    }

    function test_recentRowsShowTheFiveNewestScans() {
        const sidebar = createTemporaryObject(sidebarComponent, testCase)
        verify(findChild(sidebar, "recentSection").visible)
        const rows = recentRows(sidebar)
        compare(rows.length, 5)
        // The newest is a scan of "/": the text after its only slash is empty.
        compare(rows[0].folderName, "")
        compare(rows[1].folderName, "Project 1")
        compare(rows[4].folderName, "Project 4")
    }

    function test_aRunningScanKeepsARowThatLeadsBackToIt() {
        const sidebar = createTemporaryObject(sidebarComponent, testCase)
        const running = findChild(sidebar, "runningScanRow")
        verify(!running.visible)
        AppState.startScan(Fixture.largeFolderUrl)
        AppState.currentView = AppState.History
        verify(running.visible)
        // Not clicked: the scan may end at any turn of the event loop and leave for the
        // dashboard; the row is the plain view row every other sidebar row is.
        compare(running.view, AppState.Scanning)
        AppState.cancelScan()
        verify(!running.visible)
    }

    function test_choosingARecentRowShowsItsResult() {
        AppState.currentView = AppState.History
        const sidebar = createTemporaryObject(sidebarComponent, testCase)
        const row = recentRows(sidebar)[2]
        mouseClick(row)
        compare(AppState.currentResult.rootPath, row.result.rootPath)
        compare(AppState.currentView, AppState.Dashboard)
        const currentAnalysis = findChild(sidebar, "currentAnalysisRow")
        verify(currentAnalysis.visible)
        verify(currentAnalysis.selected)
    }

    // Up and Down walk the rows as a sidebar list does: a view's row shows its view at once, a
    // recent scan only takes the focus until Return opens it.
    function test_arrowsWalkTheRowsAndReturnOpensARecentScan() {
        AppState.currentView = AppState.Landing
        const sidebar = createTemporaryObject(sidebarComponent, testCase)
        const viewRows = ViewSearch.visibleItems(sidebar, item => item.hasOwnProperty("view"))
        viewRows[0].forceActiveFocus(Qt.TabFocusReason)
        for (const row of viewRows.slice(1)) {
            keyClick(Qt.Key_Down)
            verify(row.activeFocus)
            compare(AppState.currentView, row.view)
        }
        const lastView = AppState.currentView
        keyClick(Qt.Key_Down)
        const recent = recentRows(sidebar)[0]
        verify(recent.visualFocus)
        compare(AppState.currentView, lastView)
        keyClick(Qt.Key_Return)
        compare(AppState.currentResult.rootPath, recent.result.rootPath)
        compare(AppState.currentView, AppState.Dashboard)

        keyClick(Qt.Key_Up)
        verify(viewRows[viewRows.length - 1].activeFocus)
    }
}
