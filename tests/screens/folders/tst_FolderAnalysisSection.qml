import QtQuick
import QtQuick.Controls.Basic
import QtTest
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens
import Tessarine.Testing
import "../qml"
import "../qml/ViewSearch.js" as ViewSearch

ScreenTestCase {
    id: testCase

    name: "FolderAnalysisSection"
    width: 1000
    height: 900

    Component {
        id: sectionComponent

        FolderAnalysisSection {
            width: testCase.width
        }
    }

    function makeSection(result) {
        return createTemporaryObject(sectionComponent, testCase, { result: result })
    }

    // A button where it is on screen: rows place their items when the next frame is prepared.
    function button(section, text) {
        const found = ViewSearch.visibleItems(
                          section, item => typeof item.clicked === "function" && item.text === text)
        verify(found.length === 1, "one button " + text)
        for (let item = found[0].parent; item !== section; item = item.parent)
            verify(waitForItemPolished(item))
        return found[0]
    }

    function errorRows(section) {
        // A labelled symbol reads as its label and the label's text: count each text once.
        return [...new Set(ViewSearch.texts(section).filter(text => text.startsWith("Failed to load: ")))]
    }

    // A build that fails names its folder; the retry clears the error and shows the tree. (A
    // build cancelled and started again: FolderTreeBuildTest, AppStateTest and
    // StuckFolderWindowTest.)
    function test_failedBuildAndRetry() {
        const missing = Fixture.missingFolder()
        const section = makeSection(Fixture.resultWithoutTree(missing))
        mouseClick(button(section, "Build Folder Treemap"))
        tryCompare(section.controller, "state", FolderTreeController.Failed)
        compare(errorRows(section).length, 1)
        verify(errorRows(section)[0].indexOf(missing) > 0, errorRows(section)[0])

        // A folder of nothing but itself builds, and the retry clears the error.
        Fixture.createFolderAt(missing)
        mouseClick(button(section, "Build Folder Treemap"))
        compare(errorRows(section), [])
        tryVerify(() => section.controller.hasTree)
        verify(ViewSearch.shows(section, "No folder data available"))
        verify(ViewSearch.shows(section, "0 folders"))
    }

    function test_barsFollowTheWalk() {
        const section = makeSection(Fixture.resultWithTree())
        // A result with its own tree shows it without a build.
        verify(section.controller.hasTree)
        verify(ViewSearch.shows(section, "7 folders"))
        const plot = ViewSearch.withProperty(section, "barsHeight")[0]
        // Symbols are single glyphs; sizes and axis labels have a unit after a space.
        const names = ViewSearch.texts(plot).filter(text => text.length > 1 && text.indexOf(" ") < 0)
        compare(names, ["alpha", "alpha1", "deep", "deeper", "alpha2", "beta", "beta1"])
        // Folders inside shown folders count again: the share may pass 100%.
        verify(ViewSearch.shows(section, Format.byteCount(2250000) + " (225.0% of total)"))
    }

    // However deep the tree, the treemap shows three levels and the bars fifteen folders.
    function test_deepChain() {
        const section = makeSection(Fixture.resultWithChain(10000))
        verify(ViewSearch.shows(section, "10,000 folders"))
        verify(ViewSearch.shows(section, "15 of 10,000 folders shown"))
        const treemap = ViewSearch.named(section, "folderTreemap").treemap
        compare(treemap.cells.count, 3)
        waitForRendering(section)
    }

    // Hovering shows a folder's figures; a double click drills in and "Back" leads out
    // (RealWindowTest); the breadcrumb and "Root" lead back, and neither the direct files nor a
    // folder without sub-folders lead anywhere.
    function test_hoverBreadcrumbAndRoot() {
        const section = makeSection(Fixture.resultWithTree())
        const view = ViewSearch.named(section, "folderTreemap")
        const treemap = view.treemap
        const cells = ViewSearch.withProperty(view, "hoverScale")[0]
        // Inside a cell's label row, above any nested level, once the last change has settled.
        const pointAt = name => {
            tryCompare(cells, "scale", 1)
            const rect = treemap.cellRect(treemap.cellNamed(name))
            verify(rect.width > 0, name + " is drawn")
            return Qt.point(rect.x + 6, rect.y + 6)
        }
        const hover = name => {
            const point = pointAt(name)
            mouseMove(cells, point.x, point.y)
            tryVerify(() => treemap.details.name === name)
        }
        const doubleClick = name => {
            const point = pointAt(name)
            mouseDoubleClickSequence(cells, point.x, point.y)
        }

        hover("alpha")
        for (const text of ["600 KB", "6,000 files", "2 subfolders", "Click to drill down"])
            verify(ViewSearch.shows(view, text), text)
        // Off the cells the bar describes the folder shown.
        mouseMove(cells, -5, -5)
        tryVerify(() => treemap.details.name === "ann")

        doubleClick("alpha")
        doubleClick("alpha1")
        compare(treemap.pathNames, ["alpha", "alpha1"])
        // The last entry is where the treemap is: only the others lead somewhere.
        verify(!button(view, "alpha1").enabled)
        mouseClick(button(view, "alpha"))
        compare(treemap.pathNames, ["alpha"])
        mouseClick(button(view, "Root"))
        compare(treemap.pathNames, [])
        verify(!ViewSearch.shows(view, "Back"))

        doubleClick("Files")
        doubleClick("beta1")
        compare(treemap.pathNames, [])
    }
}
