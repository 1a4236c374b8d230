import QtQuick
import QtTest
import Tessarine.App
import Tessarine.Testing
import Tessarine.Screens
import "ViewSearch.js" as ViewSearch

ScreenTestCase {
    id: testCase

    name: "HistoryView"

    Component {
        id: historyComponent

        HistoryView {
            width: testCase.width
            height: testCase.height
        }
    }

    function init() {
        AppState.currentView = AppState.History
    }

    function cards(view) {
        return ViewSearch.withProperty(view, "scans").filter(item => item.hasOwnProperty("rootPath"))
    }

    // The view shows the history's scans, once they are listed.
    function historyOf(count) {
        Fixture.fillHistory(count)
        const view = createTemporaryObject(historyComponent, testCase)
        tryVerify(() => cards(view).length === count)
        return view
    }

    // An empty history invites a scan; a scan the command-line tool saves appears, and with a
    // second scan of one folder the trend; a search that leaves no folder with two scans hides
    // it, header and all. (Which folder's trend: HistoryModelsTest.)
    function test_scanSavedElsewhereAppearsWithItsTrend() {
        const view = historyOf(0)
        verify(ViewSearch.shows(view, "No Scan History"))
        Fixture.fillHistory(3)
        Fixture.saveElsewhere("/Users/ann/Scan 2", 1)
        tryVerify(() => cards(view).length === 4, 5000)
        verify(ViewSearch.shows(view, "4 scans saved"))
        verify(ViewSearch.shows(view, "Storage Trend"))
        verify(ViewSearch.named(view, "trendChart"))

        ViewSearch.named(view, "searchField").text = "Scan 3"
        ViewSearch.named(view, "searchField").textEdited()
        tryVerify(() => cards(view).length === 1)
        verify(!ViewSearch.shows(view, "Storage Trend"))
    }

    function test_twoAtMostAreSelectedAndDeletedTogether() {
        const view = historyOf(3)
        const circles = ViewSearch.visibleItems(view, item => item.objectName === "selectionCircle")
        compare(circles.length, 3)
        for (const circle of circles)
            mouseClick(circle)
        compare(cards(view).filter(card => card.selected).length, 2)
        const comparison = findChild(view, "comparisonSheet")
        tryVerify(() => ViewSearch.named(view, "compareButton"))
        waitForRendering(view)
        mouseClick(ViewSearch.named(view, "compareButton"))
        tryVerify(() => comparison.opened)
        keyClick(Qt.Key_Escape)
        tryVerify(() => !comparison.visible)

        // Escape leaves without deleting; Return confirms.
        const confirmation = findChild(view, "deleteConfirmation")
        mouseClick(ViewSearch.named(view, "deleteButton"))
        tryVerify(() => confirmation.opened)
        keyClick(Qt.Key_Escape)
        tryVerify(() => !confirmation.visible)
        compare(AppState.scanHistory.count, 3)
        mouseClick(ViewSearch.named(view, "deleteButton"))
        tryVerify(() => confirmation.opened)
        keyClick(Qt.Key_Return)
        tryCompare(AppState.scanHistory, "count", 1)
        tryVerify(() => cards(view).length === 1)
        verify(!ViewSearch.named(view, "deleteButton"))
    }

    // The list is one Tab stop: the arrows move between cards, Space selects for a comparison,
    // Return opens the scan.
    function test_listByKeys() {
        const view = historyOf(3)
        const list = findChild(view, "historyList")
        list.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Up)
        compare(list.currentIndex, 1)
        keyClick(Qt.Key_Space)
        compare(cards(view).filter(card => card.selected).map(card => card.rootName), ["Scan 2"])
        keyClick(Qt.Key_Return)
        compare(AppState.currentResult.rootName, "Scan 2")
        compare(AppState.currentView, AppState.Dashboard)
    }

    // Between two scans of a tree a folder appeared inside media: the sheet names that folder
    // alone, not media, and pressing it shows it in the file manager. A scan saved without folder
    // sizes gets the line that says so.
    function test_comparisonListsTheFoldersThatChanged() {
        const root = Fixture.makeTree("compared")
        const before = Fixture.saveScan(root)
        const added = Fixture.makeTree("compared/media/added")
        const sheet = createTemporaryObject(sheetComponent, testCase)
        sheet.first = Fixture.saveScan(root)
        sheet.second = before
        sheet.open()
        tryVerify(() => sheet.opened)
        const rows = ViewSearch.visibleItems(sheet.contentItem,
                                             item => item.hasOwnProperty("share"))
        compare(rows.map(row => row.detail), [added])
        rows[0].forceActiveFocus()
        keyClick(Qt.Key_Space)
        compare(Fixture.takeDesktopRequests(), ["reveal " + added])

        sheet.second = Fixture.resultWithoutTree(root)
        compare(findChild(sheet, "folderNote").text,
                "No folder sizes were saved with one or both of these scans.")
    }

    Component {
        id: sheetComponent

        ComparisonSheet {}
    }
}
