import QtQuick
import QtTest
import Tessarine.App
import Tessarine.Testing
import Tessarine.Screens
import "ViewSearch.js" as ViewSearch

ScreenTestCase {
    id: testCase

    name: "DashboardView"

    Component {
        id: dashboardComponent

        DashboardView {
            width: testCase.width
            height: testCase.height
        }
    }

    function init() {
        AppState.currentView = AppState.Dashboard
        AppState.showFolderPicker = false
    }

    function summaryCards(view) {
        return ViewSearch.withProperty(view, "isAnimated").filter(item => item.hasOwnProperty("subtitle"))
    }

    function test_headerAndSummaryCards() {
        Fixture.showResult("/Users/ann/Movies")
        const view = createTemporaryObject(dashboardComponent, testCase)
        const cards = summaryCards(view)
        compare(cards.length, 4)
        // Every card ends fully shown, whatever order the random delays gave them.
        for (const card of cards)
            tryCompare(card, "opacity", 1)
        compare(cards.map(card => card.value), ["2.5 GB", "1,234", "87", "12"])

        const texts = ViewSearch.texts(view)
        for (const expected of ["Movies", "/Users/ann/Movies", "Scanned in 12.3 seconds",
                                "levels deep", "Rescan", "New Scan"])
            verify(texts.indexOf(expected) >= 0, expected)
    }

    function test_insightsShowOnlyWhatIsThere() {
        Fixture.showResult("/Users/ann/Library")
        let view = createTemporaryObject(dashboardComponent, testCase)
        verify(ViewSearch.shows(view, "Insights"))
        verify(ViewSearch.shows(view, "Large cache files"))
        verify(ViewSearch.shows(view, "Empty folders"))
        // Only the insight that weighs something says how much.
        compare(ViewSearch.texts(view).filter(text => text.endsWith(" affected")), ["150 MB affected"])
        view.destroy()

        Fixture.showResult("/Users/ann/Library", false)
        view = createTemporaryObject(dashboardComponent, testCase)
        verify(!ViewSearch.shows(view, "Insights"))
    }

    function test_rescanScansTheSameFolder() {
        // A name that a URL parser would cut at "#" or decode at "%41".
        const folder = Fixture.makeFolder("Odd #1 %41 name")
        Fixture.showResult(folder)
        const view = createTemporaryObject(dashboardComponent, testCase)
        mouseClick(ViewSearch.named(view, "rescanButton"))
        compare(AppState.currentView, AppState.Scanning)
        tryCompare(AppState, "currentView", AppState.Dashboard, 20000)
        compare(AppState.currentResult.rootPath, folder)
        verify(!AppState.hasError)
    }

    // Tab to a control below the fold scrolls it into sight.
    function test_scrollsToTheFocusedControl() {
        Fixture.showFullResult()
        const view = createTemporaryObject(dashboardComponent, testCase)
        const search = findChild(view, "largestFilesSearch")
        verify(search.mapToItem(view, 0, 0).y > view.height)
        search.forceActiveFocus(Qt.TabFocusReason)
        const top = search.mapToItem(view, 0, 0).y
        verify(top > 0 && top + search.height < view.height, "search field at " + top)
    }

    function test_newScanOpensThePicker() {
        Fixture.showResult("/Users/ann/Movies")
        const view = createTemporaryObject(dashboardComponent, testCase)
        mouseClick(ViewSearch.named(view, "newScanButton"))
        verify(AppState.showFolderPicker)
    }
}
