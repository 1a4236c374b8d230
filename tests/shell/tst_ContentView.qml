import QtQuick
import QtTest
import Tessarine
import Tessarine.App
import Tessarine.Testing
import "../screens/qml/ViewSearch.js" as ViewSearch

// The content view as a user drives it: its sidebar, the menu commands and their shortcuts,
// folders dropped from a file manager, and the alert that shows an error.
TestCase {
    id: testCase

    name: "ContentView"
    width: 1200
    height: 800
    // Hover, drags and shortcuts reach only items in a shown window.
    visible: true
    when: windowShown

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
    property var viewsSeen: []

    Connections {
        target: AppState
        function onCurrentViewChanged() {
            testCase.viewsSeen.push(AppState.currentView)
        }
    }
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

    // From the dashboard: RealWindowTest.
    function test_viewHistoryKeepsAScanRunning() {
        AppState.startScan(Fixture.largeFolderUrl)
        viewsSeen = []
        keyClick(Qt.Key_H, Qt.ControlModifier | Qt.ShiftModifier)
        // The scan was left to run to its result (which may come before the key on a slow
        // machine, so the order of the two views is not checked).
        tryCompare(AppState, "isScanning", false, 30000)
        verify(viewsSeen.includes(AppState.History))
        compare(AppState.currentResult.fileCount, 5000)
    }

    function test_droppedFolderStartsAScan() {
        // Over the sidebar: the landing screen's own drop zone takes drags over its middle.
        verify(Fixture.dragOver(findChild(content, "sidebar"), Fixture.folderUrl))
        verify(content.isDropTargeted)
        verify(overlay().shown)
        verify(!overlay().startsNewScan)
        compare(Fixture.drop(), Qt.CopyAction)
        verify(!content.isDropTargeted)
        tryCompare(AppState, "currentView", AppState.Scanning)
        tryCompare(AppState, "isScanning", false, 30000)
        compare(AppState.currentView, AppState.Dashboard)
        compare(AppState.currentResult.rootPath, Fixture.folderPath)

        // Over the dashboard the overlay says that a new scan replaces the one on display.
        verify(Fixture.dragOver(content, Fixture.folderUrl))
        verify(overlay().startsNewScan)
        Fixture.leave()
        verify(!content.isDropTargeted)
        tryCompare(overlay(), "visible", false)
    }

    // While a scan runs a drag still shows the overlay; only its drop is refused.
    function test_dropsAreRefusedWhileScanning() {
        AppState.startScan(Fixture.largeFolderUrl)
        verify(AppState.isScanning)
        verify(Fixture.dragOver(content, Fixture.folderUrl))
        verify(overlay().shown)
        compare(Fixture.drop(), Qt.IgnoreAction)
        verify(AppState.isScanning)
        compare(AppState.currentView, AppState.Scanning)
    }

    // OK clears the error, and so do Escape and Return, the key of "OK".
    function test_alertShowsTheErrorAndOkClearsIt() {
        const alert = createTemporaryObject(alertComponent, testCase)
        AppState.error = AppError.exportFailed("No space left on device")
        tryCompare(alert, "opened", true)
        compare(findChild(alert.contentItem, "errorDescription").text,
                "Export failed: No space left on device")
        // The suggestion's text: tst_Dashboard's failed export.
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

    function test_aRunningScanKeepsARowThatLeadsBackToIt() {
        const sidebar = findChild(content, "sidebar")
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
