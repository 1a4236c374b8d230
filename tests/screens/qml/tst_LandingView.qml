import QtQuick
import QtTest
import Tessarine.App
import Tessarine.Testing
import Tessarine.Screens
import "ViewSearch.js" as ViewSearch

ScreenTestCase {
    id: testCase

    name: "LandingView"

    Component {
        id: landingComponent

        LandingView {
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
    }

    function recentCards(view) {
        return ViewSearch.withProperty(view, "result")
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
        compare(recentCards(view)[0].result.rootName, "Scan 7")
        strip.positionViewAtEnd()
        compare(strip.itemAtIndex(4).result.rootName, "Scan 3")
        strip.positionViewAtBeginning()
        waitForRendering(strip)
        mouseClick(recentCards(view).find(card => card.result.rootName === "Scan 6"))
        compare(AppState.currentView, AppState.Dashboard)
        compare(AppState.currentResult.rootName, "Scan 6")
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
}
