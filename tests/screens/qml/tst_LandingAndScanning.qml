import QtQuick
import QtTest
import Tessarine.App
import Tessarine.Testing
import Tessarine.Screens
import "ViewSearch.js" as ViewSearch

// What the user meets before a result: the landing screen, then the scan in progress.
ScreenTestCase {
    id: testCase

    name: "LandingAndScanning"

    Component {
        id: landingComponent

        LandingView {
            width: testCase.width
            height: testCase.height
        }
    }

    Component {
        id: scanningComponent

        ScanningView {
            width: testCase.width
            height: testCase.height
        }
    }

    // Stands for a file manager's drag: it carries the file-location type and moves over the view.
    Component {
        id: dragComponent

        Item {
            width: 10
            height: 10
            Drag.keys: ["text/uri-list"]
        }
    }

    function init() {
        AppState.currentView = AppState.Landing
        AppState.showFolderPicker = false
        Fixture.fillHistory(0)
        Fixture.clearProgress()
    }

    function logRows(view) {
        return ViewSearch.withProperty(view, "timestamp")
    }

    function recentCards(view) {
        return ViewSearch.withProperty(view, "summary")
    }

    // None without a history; the five newest once there is one.
    function test_recentScansShowTheFiveNewest() {
        const view = createTemporaryObject(landingComponent, testCase)
        verify(!ViewSearch.shows(view, "Recent Scans"))
        compare(recentCards(view).length, 0)
        Fixture.fillHistory(7)
        waitForRendering(view)
        verify(ViewSearch.shows(view, "Recent Scans"))
        // The strip scrolls sideways, so only the cards in view exist at first.
        const strip = ViewSearch.named(view, "recentStrip")
        compare(strip.count, 5)
        compare(recentCards(view)[0].summary.rootName, "Scan 7")
        strip.positionViewAtEnd()
        compare(strip.itemAtIndex(4).summary.rootName, "Scan 3")
        strip.positionViewAtBeginning()
        waitForRendering(strip)
        mouseClick(recentCards(view).find(card => card.summary.rootName === "Scan 6"))
        compare(AppState.currentView, AppState.Dashboard)
        compare(AppState.currentResult.rootName, "Scan 6")
    }

    // "3 sec. ago" moves on while the screen stays open.
    function test_relativeDatesFollowTheClock() {
        Fixture.saveElsewhere("/Users/ann/Just Now", 0.001)
        const view = createTemporaryObject(landingComponent, testCase)
        const age = () => ViewSearch.texts(view).find(text => text.endsWith(" sec. ago"))
        tryVerify(() => age() !== undefined, 5000)
        const first = age()
        tryVerify(() => age() !== first, 5000)
    }

    function test_buttonsOpenThePickerAndTheHistory() {
        Fixture.fillHistory(2)
        const view = createTemporaryObject(landingComponent, testCase)
        mouseClick(ViewSearch.named(view, "dropZone"))
        verify(AppState.showFolderPicker)

        AppState.showFolderPicker = false
        const select = ViewSearch.visibleItems(view, item => item.text === "Select Folder"
                                                             && item.clicked !== undefined)[0]
        mouseClick(select)
        verify(AppState.showFolderPicker)

        const viewAll = ViewSearch.visibleItems(view, item => item.text === "View All"
                                                              && item.clicked !== undefined)[0]
        mouseClick(viewAll)
        compare(AppState.currentView, AppState.History)
    }

    function test_onlyADroppedFolderStartsAScan() {
        const view = createTemporaryObject(landingComponent, testCase)
        verify(view.dropArea.take([Fixture.urlOf(Fixture.makeFile("report.pdf"))]))
        verify(!view.dropArea.take([]))
        wait(0) // lets a wrongly started scan show itself
        compare(AppState.currentView, AppState.Landing)
        verify(!AppState.hasError)

        verify(view.dropArea.take([Fixture.urlOf(Fixture.makeFolder("Photos 2024"))]))
        tryCompare(AppState, "currentView", AppState.Scanning)
        // A drop while the scan runs is refused: tst_ContentView.qml, on the same FolderDropArea.
        AppState.cancelScan()
    }

    function test_hoveringADragTargetsTheDropZone() {
        const view = createTemporaryObject(landingComponent, testCase)
        const zone = ViewSearch.named(view, "dropZone")
        const drag = createTemporaryObject(dragComponent, testCase, {x: 600, y: 400})
        verify(!zone.targeted)

        drag.Drag.active = true
        tryVerify(() => view.isTargeted)
        verify(zone.targeted)

        drag.Drag.active = false
        tryVerify(() => !view.isTargeted)
        verify(!zone.targeted)
        compare(AppState.currentView, AppState.Landing)
    }

    function test_liveSnapshot() {
        const view = createTemporaryObject(scanningComponent, testCase)
        waitForRendering(view)
        Fixture.showProgress("/Users/ann/Projects/tessarine/src/screens/scanning/main.cpp")
        // The counters count up to their figures over a few frames.
        const files = ViewSearch.visibleItems(view, item => item.label === "Files")[0]
        tryVerify(() => files.shownCount > 0)
        verify(files.shownCount < 1200, files.shownCount)
        tryCompare(files, "value", "1,200")
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
        // The activity log shows the fifteen newest.
        for (let i = 1; i <= 20; ++i)
            Fixture.showProgress("/data/file" + i + ".bin")
        tryVerify(() => ViewSearch.shows(view, "21 entries"))
        const rows = logRows(view)
        compare(rows.length, 15)
        compare(rows[0].name, "file20.bin")
        compare(rows[14].name, "file6.bin")
    }
}
