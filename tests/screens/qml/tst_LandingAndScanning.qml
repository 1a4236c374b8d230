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

    function init() {
        AppState.currentView = AppState.Landing
        AppState.showFolderPicker = false
        Fixture.fillHistory(0)
        Fixture.clearProgress()
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

    function test_dropZoneOpensThePickerAndViewAllTheHistory() {
        Fixture.fillHistory(2)
        const view = createTemporaryObject(landingComponent, testCase)
        mouseClick(ViewSearch.named(view, "dropZone"))
        verify(AppState.showFolderPicker)
        const viewAll = ViewSearch.visibleItems(view, item => item.text === "View All"
                                                              && item.clicked !== undefined)[0]
        mouseClick(viewAll)
        compare(AppState.currentView, AppState.History)
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
        // A figure of every card (the figures themselves: ScreenFiguresTest); the path's deepest
        // six pieces.
        for (const expected of ["Analyzing files...", "1,500", "5 MB", "main.cpp", "4 KB",
                                "30s remaining", "50%", "Projects", "1 entries"])
            verify(texts.indexOf(expected) >= 0, expected)
        verify(texts.indexOf("ann") < 0 && texts.indexOf("Users") < 0)
        verify(texts.indexOf("Preparing to scan...") < 0)
    }
}
