import QtQuick
import QtTest
import Tessarine.App
import Tessarine.Testing
import Tessarine.Screens
import "ViewSearch.js" as ViewSearch

ScreenTestCase {
    id: testCase

    name: "ScanningView"

    Component {
        id: scanningComponent

        ScanningView {
            width: testCase.width
            height: testCase.height
        }
    }

    function init() {
        Fixture.clearProgress()
        AppState.currentView = AppState.Scanning
    }

    function logRows(view) {
        return ViewSearch.withProperty(view, "timestamp")
    }

    function test_placeholdersBeforeTheFirstSnapshot() {
        const view = createTemporaryObject(scanningComponent, testCase)
        waitForRendering(view)
        const texts = ViewSearch.texts(view)
        for (const expected of ["Initializing...", "Preparing to scan directory", "0 bytes", "0s",
                                "—", "Preparing to scan...", "0 entries"])
            verify(texts.indexOf(expected) >= 0, expected)
        compare(texts.filter(text => text === "0").length, 2) // the Files and Folders counters
        verify(texts.indexOf("items") < 0)
        verify(texts.indexOf("Progress") < 0)
        compare(logRows(view).length, 0)
    }

    function test_liveSnapshot() {
        const view = createTemporaryObject(scanningComponent, testCase)
        Fixture.showProgress("/Users/ann/Projects/tessarine/src/screens/scanning/main.cpp")
        waitForRendering(view)
        const texts = ViewSearch.texts(view)
        for (const expected of ["Analyzing files...", "Reading file metadata", "1,500", "items",
                                "1,200", "300", "5 MB", "main.cpp", "Init", "Done",
                                // performance: nothing measured yet, averages from the counters
                                "4 KB", "4.0", "files/sec",
                                // statistics
                                "Total Items", "30s remaining", "Progress", "50%",
                                // the deepest six pieces of the path
                                "Projects", "scanning", "1 entries"])
            verify(texts.indexOf(expected) >= 0, expected)
        verify(texts.indexOf("ann") < 0 && texts.indexOf("Users") < 0)
        verify(texts.indexOf("Preparing to scan...") < 0)
    }

    function test_activityLogShowsTheFifteenNewest() {
        const view = createTemporaryObject(scanningComponent, testCase)
        for (let i = 1; i <= 20; ++i)
            Fixture.showProgress("/data/file" + i + ".bin")
        waitForRendering(view)
        verify(ViewSearch.shows(view, "20 entries"))
        const rows = logRows(view)
        compare(rows.length, 15)
        compare(rows[0].name, "file20.bin")
        compare(rows[14].name, "file6.bin")
    }

    function test_cancelStopsTheScan() {
        const view = createTemporaryObject(scanningComponent, testCase)
        mouseClick(ViewSearch.named(view, "cancelButton"))
        compare(AppState.currentView, AppState.Landing)
        verify(!AppState.isScanning)
    }
}
