import QtQuick
import QtTest
import Tessarine.Charts
import Tessarine.Fixtures

TestCase {
    id: testCase

    name: "TreemapCells"
    width: 400
    height: 300
    when: windowShown
    // A test case is hidden by default, and hover is only delivered to visible items.
    visible: true

    Component {
        id: cellsComponent

        TreemapCells {
            width: 400
            height: 300
            hoverScale: 1.02
            cells: CellFixtures.grid(20, 15, 20)
        }
    }

    SignalSpy {
        id: clickSpy
        signalName: "clicked"
    }

    SignalSpy {
        id: doubleClickSpy
        signalName: "doubleClicked"
    }

    function makeCells(properties) {
        const cells = createTemporaryObject(cellsComponent, testCase, properties)
        clickSpy.target = cells
        doubleClickSpy.target = cells
        clickSpy.clear()
        doubleClickSpy.clear()
        return cells
    }

    function test_hoverAndClick() {
        const cells = makeCells({})
        // Outside every cell nothing is hit; later cells are on top (ChartListModelsTest's
        // everyCellIsAnElementOfItsOwn, and the hover below).
        compare(cells.cellAt(-1, 10), -1)

        mouseMove(cells, 30, 10)
        tryCompare(cells, "hoveredIndex", 1)
        mouseMove(cells, 390, 290)
        tryCompare(cells, "hoveredIndex", 299)
        // The hovered cell is drawn in its own, stronger style; its neighbour keeps the normal one.
        waitForRendering(cells)
        const image = grabImage(cells)
        const hovered = image.pixel(390, 290)
        const normal = image.pixel(370, 290)
        verify(hovered.b > 0.9 && normal.b > 0.9, "cells are drawn in their fill")
        verify(hovered.r < normal.r - 0.05, "hovered " + hovered + ", normal " + normal)
        // A hovered cell keeps the later cells inside it (a nested level) in front of it.
        mouseMove(cells, 15, 15)
        tryCompare(cells, "hoveredIndex", 0)
        waitForRendering(cells)
        const nested = grabImage(cells).pixel(6, 6)
        verify(nested.r > nested.b, "nested cell " + nested)

        mouseClick(cells, 50, 30)
        compare(clickSpy.count, 1)
        compare(clickSpy.signalArguments[0][0], 22)
        mouseDoubleClickSequence(cells, 3, 3)
        compare(doubleClickSpy.count, 1)
        compare(doubleClickSpy.signalArguments[0][0], 300)

        // New cells hover whatever lies under the pointer now.
        cells.cells = CellFixtures.grid(2, 2, 20)
        compare(cells.hoveredIndex, 0)
        compare(cells.cellAt(100, 100), -1)
    }

    // Focused by Tab, the arrows move the hovered cell to its neighbour on screen (the
    // nested cell over the first is skipped: its centre lies inside the first), Space clicks and
    // Return double-clicks it, and a mouse focus shows no ring.
    function test_keysMoveBetweenCellsAndActOnThem() {
        const cells = makeCells({cells: CellFixtures.grid(3, 2, 20)})
        // The pointer rests away from the cells: the keys lead, and its stillness does not undo them.
        mouseMove(cells, 300, 250)
        cells.forceActiveFocus(Qt.TabFocusReason)
        compare(cells.hoveredIndex, 0)
        keyClick(Qt.Key_Right)
        compare(cells.hoveredIndex, 1)
        keyClick(Qt.Key_Down)
        compare(cells.hoveredIndex, 4)
        keyClick(Qt.Key_Down)
        compare(cells.hoveredIndex, 4)
        keyClick(Qt.Key_Left)
        keyClick(Qt.Key_Left)
        compare(cells.hoveredIndex, 3)

        keyClick(Qt.Key_Space)
        compare(clickSpy.count, 1)
        // A click restyles the cells (a new selection): the keys stay on their cell.
        cells.cells = CellFixtures.restyled(cells.cells)
        compare(cells.hoveredIndex, 3)
        compare(doubleClickSpy.count, 0)
        keyClick(Qt.Key_Return)
        compare(clickSpy.count, 2)
        compare(doubleClickSpy.count, 1)
        compare(doubleClickSpy.signalArguments[0][0], 3)

        // The focused cell wears the accent ring along its inner edge (cell 3: x 0-20, y 20-40).
        waitForRendering(cells)
        const ringed = grabImage(cells).pixel(10, 21)
        verify(ringed.b > 0.8 && ringed.r < 0.3, "ring " + ringed)
    }

    // A cell the pointer leaves shrinks back into its normal style rather than snapping, and a
    // new style of the same cells (another selection) fades in: on the next frame both are still
    // on their way.
    function test_leavingAndRestylingAnimate() {
        const cells = makeCells({cells: CellFixtures.grid(3, 2, 20)})
        mouseMove(cells, 30, 10)
        tryCompare(cells, "hoveredIndex", 1)
        waitForRendering(cells)
        const normal = grabImage(cells).pixel(50, 10)

        // Long enough that no frame can reach the end.
        cells.hoverDuration = 100000
        mouseMove(cells, 50, 30)
        tryCompare(cells, "hoveredIndex", 5)
        waitForRendering(cells)
        const leaving = grabImage(cells).pixel(30, 10)
        verify(leaving.r < normal.r - 0.05, "left cell " + leaving + ", normal " + normal)

        cells.cells = CellFixtures.restyled(cells.cells)
        waitForRendering(cells)
        const fading = grabImage(cells).pixel(10, 30)
        verify(fading.b > fading.g, "fading in " + fading)
        tryVerify(() => {
            const settled = grabImage(cells).pixel(10, 30)
            return settled.g > settled.b
        })
    }
}
