import QtQuick
import QtTest
import Tessarine
import Tessarine.App
import Tessarine.Testing

TestCase {
    id: testCase

    name: "DropTarget"
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

    property ContentView content

    function init() {
        content = createTemporaryObject(contentComponent, testCase)
        AppState.currentView = AppState.Landing
    }

    function cleanup() {
        Fixture.leave()
        if (AppState.isScanning)
            AppState.cancelScan()
        AppState.clearError()
        Fixture.forgetFolderScans()
    }

    function overlay() {
        return findChild(content, "dropOverlay")
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
