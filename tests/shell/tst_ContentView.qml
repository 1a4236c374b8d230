import QtQuick
import QtTest
import Tessarine
import Tessarine.App
import Tessarine.Testing
import "../screens/qml"
import "../screens/qml/ViewSearch.js" as ViewSearch

// The content view as a user drives it: its sidebar, the menu commands and their shortcuts,
// folders dropped from a file manager, and the alert that shows an error.
ScreenTestCase {
    id: testCase

    name: "ContentView"

    Component {
        id: contentComponent
        ContentView {
            width: testCase.width
            height: testCase.height
        }
    }

    Component {
        id: commandsComponent
        AppCommands {}
    }

    Component {
        id: alertComponent
        ErrorAlert {}
    }

    property ContentView content
    property AppCommands commands

    function init() {
        content = createTemporaryObject(contentComponent, testCase)
        commands = createTemporaryObject(commandsComponent, testCase)
        AppState.currentView = AppState.Landing
    }

    function cleanup() {
        Fixture.leave()
        if (AppState.isScanning)
            AppState.cancelScan()
        if (content.folderPicker.visible)
            content.folderPicker.reject()
        AppState.clearError()
        Fixture.forgetFolderScans()
    }

    function overlay() {
        return findChild(content, "dropOverlay")
    }

    // Closing the picker without a choice hands the request back, so that Ctrl+N opens it again.
    // (A folder picked is scanned: DesktopFileChooserTest.)
    function test_newScanOpensThePickerAgainAfterAClose() {
        for (let i = 0; i < 2; ++i) {
            keyClick(Qt.Key_N, Qt.ControlModifier)
            verify(AppState.showFolderPicker)
            tryCompare(content.folderPicker, "visible", true)
            content.folderPicker.reject()
            verify(!AppState.showFolderPicker)
        }
    }

    function test_droppedFolderStartsAScan() {
        // Over the sidebar: the landing screen's own drop zone takes drags over its middle.
        verify(Fixture.dragOver(findChild(content, "sidebar"), Fixture.folderUrl))
        verify(content.isDropTargeted)
        verify(overlay().shown)
        verify(!overlay().startsNewScan)
        compare(Fixture.drop(), Qt.CopyAction)
        verify(!content.isDropTargeted)
        tryCompare(AppState, "currentView", AppState.Dashboard, 30000)
        compare(AppState.currentResult.rootPath, Fixture.folderPath)

        // Over the dashboard the overlay says that a new scan replaces the one on display.
        verify(Fixture.dragOver(content, Fixture.folderUrl))
        verify(overlay().startsNewScan)
        Fixture.leave()
        verify(!content.isDropTargeted)
        tryCompare(overlay(), "visible", false)
    }

    // OK clears the error, and so do Escape and Return, the key of "OK".
    function test_alertShowsTheErrorAndOkClearsIt() {
        const alert = createTemporaryObject(alertComponent, testCase)
        AppState.error = AppError.exportFailed("No space left on device")
        tryCompare(alert, "opened", true)
        compare(findChild(alert.contentItem, "errorDescription").text,
                "Export failed: No space left on device")
        verify(findChild(alert.contentItem, "recoverySuggestion").visible)

        mouseClick(findChild(alert.contentItem, "okButton"))
        tryCompare(alert, "visible", false)
        verify(!AppState.hasError)
        for (const key of [Qt.Key_Escape, Qt.Key_Return]) {
            AppState.error = AppError.invalidPath("/x")
            tryCompare(alert, "opened", true)
            keyClick(key)
            tryCompare(alert, "visible", false)
            verify(!AppState.hasError)
        }
    }

    function recentRows(sidebar) {
        return ViewSearch.visibleItems(sidebar, item => item.objectName === "recentScanRow")
    }

    // While a scan runs a drag still shows the overlay, but its drop is refused; from another
    // view the sidebar keeps a row that leads back to the scan, which goes on meanwhile.
    function test_aRunningScanRefusesDropsAndKeepsARowThatLeadsBackToIt() {
        const running = findChild(findChild(content, "sidebar"), "runningScanRow")
        verify(!running.visible)
        AppState.startScan(Fixture.largeFolderUrl)
        verify(Fixture.dragOver(content, Fixture.folderUrl))
        verify(overlay().shown)
        compare(Fixture.drop(), Qt.IgnoreAction)
        compare(AppState.currentView, AppState.Scanning)
        AppState.currentView = AppState.History
        verify(running.visible)
        // Not clicked: the scan may end at any turn of the event loop and leave for the
        // dashboard; the row is the plain view row every other sidebar row is.
        compare(running.view, AppState.Scanning)
        AppState.cancelScan()
        verify(!running.visible)
    }

    // Up and Down walk the rows as a sidebar list does: a view's row shows its view at once, a
    // recent scan (one of the five newest, the newest a scan of "/" and so without a name) only
    // takes the focus until Return opens it, and the current analysis row appears, selected.
    function test_arrowsWalkTheRowsAndReturnOpensARecentScan() {
        AppState.currentView = AppState.Landing
        const sidebar = findChild(content, "sidebar")
        compare(recentRows(sidebar).map(row => row.folderName),
                ["", "Project 1", "Project 2", "Project 3", "Project 4"])
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
        compare(AppState.currentResult.rootPath, recent.summary.rootPath)
        compare(AppState.currentView, AppState.Dashboard)
        verify(findChild(sidebar, "currentAnalysisRow").selected)

        keyClick(Qt.Key_Up)
        verify(viewRows[viewRows.length - 1].activeFocus)
    }
}
