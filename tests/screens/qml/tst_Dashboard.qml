import QtQuick
import QtTest
import Tessarine.App
import Tessarine.Testing
import Tessarine.Screens
import "ViewSearch.js" as ViewSearch

// The dashboard's header, cards, charts, largest-files table and export sheet, driven with the
// pointer and the keyboard. The view is as tall as its content so that every card can be reached.
ScreenTestCase {
    id: testCase

    name: "Dashboard"
    height: 3200

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
        AppState.clearError()
        Fixture.takeDesktopRequests()
    }

    function summaryCards(view) {
        return ViewSearch.withProperty(view, "isAnimated").filter(item => item.hasOwnProperty("subtitle"))
    }

    function dashboard() {
        Fixture.showFullResult()
        const view = createTemporaryObject(dashboardComponent, testCase)
        waitForRendering(view)
        return view
    }

    function cellLabels(view) {
        return ViewSearch.withProperty(view, "cellWidth")
    }

    function clickCenter(item, modifiers) {
        mouseClick(item, item.width / 2, item.height / 2, Qt.LeftButton, modifiers)
    }

    // The legend and the treemap share one selection (a click on a cell: RealWindowTest).
    function test_oneSelectionForLegendTreemapAndClearButton() {
        const view = dashboard()
        const legend = ViewSearch.visibleItems(view, item => item.objectName === "legendEntry")
        compare(legend.length, 8)
        compare(cellLabels(view).length, 12)

        clickCenter(legend[1])
        compare(view.categorySelection.category, legend[1].category)
        verify(ViewSearch.named(view, "clearCategoryButton"))
        const dimmed = () => ViewSearch.visibleItems(view, item => item.objectName === "categoryBar")
                       .filter(bar => bar.opacity < 0.5)
        tryVerify(() => dimmed().length === 11)

        // Another entry moves the selection, the selected one clears it.
        clickCenter(legend[0])
        compare(view.categorySelection.category, legend[0].category)
        clickCenter(legend[0])
        compare(view.categorySelection.category, -1)
        verify(!ViewSearch.named(view, "clearCategoryButton"))

        clickCenter(legend[2])
        clickCenter(ViewSearch.named(view, "clearCategoryButton"))
        compare(view.categorySelection.category, -1)
    }

    // "Show All" and "Show Less" open and close the extensions, and the largest files fold away,
    // over several frames (the next frame is part of the way); every card pads its content alike.
    function test_sectionsOpenAndCloseSmoothly() {
        const view = dashboard()
        const sectionTitle = title => ViewSearch.visibleItems(
                                 view, item => item.hasOwnProperty("symbol") && item.title === title)[0]
        const left = item => item.mapToItem(view, 0, 0).x
        // Once the summary cards have grown into place, whatever order their random delays gave.
        const cards = summaryCards(view)
        compare(cards.length, 4)
        for (const card of cards) {
            tryCompare(card, "scale", 1)
            tryCompare(card, "opacity", 1)
        }
        fuzzyCompare(left(sectionTitle("Storage by Category")),
                     left(ViewSearch.visibleItems(view, item => item.text === "Total Size")[0]), 0.5)

        const extensionRows = () => ViewSearch.withProperty(view, "fraction").length
        const list = ViewSearch.named(view, "extensionRows")
        const shut = list.height
        compare(extensionRows(), 10)
        verify(ViewSearch.shows(view, "+ 5 more extensions"))
        const button = ViewSearch.named(view, "showAllExtensionsButton")
        clickCenter(button)
        compare(button.text, "Show Less")
        compare(extensionRows(), 15)
        verify(!ViewSearch.named(view, "moreExtensionsFooter"))
        tryVerify(() => list.height > shut)
        const partWay = list.height
        tryVerify(() => list.height === list.children[0].implicitHeight && list.height > partWay)
        clickCenter(button)
        compare(extensionRows(), 10)

        const body = ViewSearch.named(view, "largestFilesBody")
        const bodyHeight = body.height
        clickCenter(ViewSearch.named(view, "largestFilesDisclosure"))
        tryVerify(() => body.height < bodyHeight)
        verify(body.height > 0, body.height)
        tryVerify(() => !ViewSearch.named(view, "largestFilesSearch"))
    }

    TextMetrics {
        id: metrics
    }

    // Shares and sizes are set in Inter with digits of one width, so that they line up.
    function test_figuresHaveTabularDigits() {
        const view = dashboard()
        const share = ViewSearch.visibleItems(view, item => item.objectName === "legendEntry")[0]
        const figure = ViewSearch.visibleItems(share, item => /%$/.test(item.text || ""))[0]
        verify(figure.font.family.startsWith("Inter"), figure.font.family)
        metrics.font = figure.font
        metrics.text = "1111"
        const ones = metrics.advanceWidth
        metrics.text = "0000"
        compare(ones, metrics.advanceWidth)
    }

    function test_depthChartPicksBySlices() {
        const view = dashboard()
        const area = ViewSearch.named(view, "depthHoverArea")
        // The slice under the pointer (ChartGeometryTest::axisTicksBarsAndSlices), once the
        // pointer has entered the chart.
        mouseMove(area, 0, area.height / 2)
        tryVerify(() => ViewSearch.shows(view, "Level 0"))
        mouseMove(area, area.width * 5.5 / 20, area.height / 2)
        tryVerify(() => ViewSearch.shows(view, "Level 5"))
        verify(!ViewSearch.named(view, "depthSummary"))
        mouseMove(area, -10, -10)
        tryVerify(() => ViewSearch.named(view, "depthSummary") !== null)

        // The keys step through the levels from the first, and leaving gives the summary back.
        let card = area
        while (!card.hasOwnProperty("selectedRow"))
            card = card.parent
        area.parent.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Right)
        compare(card.selectedRow, 1)
        verify(!ViewSearch.named(view, "depthSummary"))
        area.parent.focus = false
        tryVerify(() => ViewSearch.named(view, "depthSummary") !== null)
    }

    function test_tableSortsSearchesSelectsAndActs() {
        const view = dashboard()
        const section = ViewSearch.withProperty(view, "isExpanded")[0]
        const rows = section.rows

        const headerCells = ViewSearch.withProperty(view, "sortable")
        clickCenter(headerCells.find(cell => cell.text === "Name"))
        compare(rows.sortColumn, 0)

        const search = ViewSearch.named(view, "largestFilesSearch")
        search.forceActiveFocus()
        for (const key of [Qt.Key_M, Qt.Key_P, Qt.Key_3])
            keyClick(key)
        compare(rows.searchText, "mp3")
        verify(rows.rowCount() > 0 && rows.rowCount() < 100)

        // The first column's cells of the rows shown, in row order; the table keeps cells of
        // earlier rows in its pool.
        const cells = () => {
            const shown = []
            for (const cell of ViewSearch.visibleItems(view, item => item.hasOwnProperty("folder") && item.column === 0))
                if (cell.row < rows.rowCount() && !shown[cell.row])
                    shown[cell.row] = cell
            return shown
        }
        clickCenter(cells()[0])
        clickCenter(cells()[1], Qt.ControlModifier)
        compare(rows.selectedCount, 2)
        verify(ViewSearch.named(view, "revealSelectedButton"))
        waitForRendering(view)
        clickCenter(ViewSearch.named(view, "revealSelectedButton"))
        const selected = rows.selectedPaths
        compare(Fixture.takeDesktopRequests(), selected.map(path => "reveal " + path))

        keyClick(Qt.Key_C, Qt.ControlModifier)
        compare(Fixture.takeDesktopRequests(), ["copy " + selected.join("\n")])

        // Arrows move the selection, Enter reveals; a double-click reveals the row clicked.
        keyClick(Qt.Key_Down)
        compare(rows.selectedCount, 1)
        keyClick(Qt.Key_Return)
        compare(Fixture.takeDesktopRequests(), ["reveal " + rows.selectedPaths[0]])
        mouseDoubleClickSequence(cells()[0])
        compare(Fixture.takeDesktopRequests(), ["reveal " + rows.pathAt(0)])

        // The context menu acts on the row it opened on.
        const menu = ViewSearch.withProperty(view, "menuRow")[0]
        for (const [itemName, verb] of [["revealMenuItem", "reveal"], ["copyPathMenuItem", "copy"],
                                        ["openMenuItem", "open"]]) {
            mouseClick(cells()[1], 10, 10, Qt.RightButton)
            compare(menu.menuRow, 1)
            const item = findChild(menu, itemName)
            tryVerify(() => item.visible)
            item.triggered()
            item.menu.close()
            compare(Fixture.takeDesktopRequests(), [verb + " " + rows.pathAt(1)])
        }
    }

    function test_exportSheetKeepsOpenOnFailure() {
        const view = dashboard()
        const sheet = view.exportSheet
        clickCenter(ViewSearch.named(view, "exportToolbarButton"))
        tryVerify(() => sheet.opened)
        // The parent of the destination is a file: the write fails even for root.
        sheet.exportTo(Fixture.urlOf(Fixture.makeFile("not a folder") + "/analysis.json"))
        verify(AppState.hasError)
        verify(AppState.error.errorDescription.startsWith("Export failed: "))
        verify(sheet.visible)
        sheet.close()
    }

    function test_emptyFilesAndOddNamesStillMakeADashboard() {
        Fixture.showEmptyResult()
        const view = createTemporaryObject(dashboardComponent, testCase)
        waitForRendering(view)
        // Nothing to divide: no treemap cell; both files listed.
        compare(cellLabels(view).length, 0)
        compare(ViewSearch.named(view, "largestFilesTableView").rows, 2)
    }

    // Tab to a control below the fold scrolls it into sight.
    function test_scrollsToTheFocusedControl() {
        Fixture.showFullResult()
        const view = createTemporaryObject(dashboardComponent, testCase)
        view.height = 800
        const search = findChild(view, "largestFilesSearch")
        verify(search.mapToItem(view, 0, 0).y > view.height)
        search.forceActiveFocus(Qt.TabFocusReason)
        const top = search.mapToItem(view, 0, 0).y
        verify(top > 0 && top + search.height < view.height, "search field at " + top)
    }
}
