import QtQuick
import QtTest
import Tessarine
import Tessarine.App
import Tessarine.Testing

// The content view as a user drives it: the menu commands and their shortcuts, and folders
// dropped from a file manager.
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

    SignalSpy {
        id: helpSpy
        signalName: "helpRequested"
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
        helpSpy.target = commands
        helpSpy.clear()
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

    function test_newScanOpensThePickerWhoseChoiceIsScanned() {
        keyClick(Qt.Key_N, Qt.ControlModifier)
        verify(AppState.showFolderPicker)
        tryCompare(content.folderPicker, "visible", true)

        content.folderPicker.currentFolder = Fixture.folderUrl
        content.folderPicker.selectedFolder = Fixture.folderUrl
        content.folderPicker.accept()
        verify(!AppState.showFolderPicker)
        compare(AppState.currentView, AppState.Scanning)
        verify(AppState.isScanning)

        // Closing the picker without a choice hands the request back too.
        keyClick(Qt.Key_N, Qt.ControlModifier)
        tryCompare(content.folderPicker, "visible", true)
        content.folderPicker.reject()
        verify(!AppState.showFolderPicker)
    }

    function test_viewHistoryWorksFromEveryViewAndKeepsAScanRunning() {
        for (const view of [AppState.Landing, AppState.Dashboard]) {
            AppState.currentView = view
            keyClick(Qt.Key_H, Qt.ControlModifier | Qt.ShiftModifier)
            compare(AppState.currentView, AppState.History)
        }
        AppState.startScan(Fixture.largeFolderUrl)
        viewsSeen = []
        keyClick(Qt.Key_H, Qt.ControlModifier | Qt.ShiftModifier)
        // The scan was left to run to its result (which may come before the key on a slow
        // machine, so the order of the two views is not checked).
        tryCompare(AppState, "isScanning", false, 30000)
        verify(viewsSeen.includes(AppState.History))
        compare(AppState.currentResult.fileCount, 5000)
    }

    function test_helpShortcutAsksForTheHelpWindow() {
        keyClick(Qt.Key_Question, Qt.ControlModifier)
        compare(helpSpy.count, 1)
        keyClick(Qt.Key_Question, Qt.ControlModifier | Qt.ShiftModifier)
        compare(helpSpy.count, 2)
        compare(AppState.currentView, AppState.Landing)
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

    function test_dropsAreRefusedWhileScanning() {
        AppState.startScan(Fixture.folderUrl)
        verify(AppState.isScanning)
        verify(!Fixture.dragOver(content, Fixture.folderUrl))
        verify(!content.isDropTargeted)
        verify(!overlay().shown)
        compare(Fixture.drop(), Qt.IgnoreAction)
        compare(AppState.currentView, AppState.Scanning)
    }
}
