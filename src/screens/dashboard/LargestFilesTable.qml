import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design
import Tessarine.Screens

// The table of the largest files: headers that sort, alternating rows, clicks that select with
// Shift and Ctrl, a double-click or Enter that reveals, a context menu on one file, and Ctrl+C
// that copies the selected paths one per line. Tab reaches the table as one stop, Up and Down move
// the selection and the menu key opens the context menu of the current row.
Control {
    id: root

    required property LargestFilesRows rows
    // The row the context menu was opened on.
    property int menuRow: -1

    signal revealRequested(string path)
    signal openRequested(string path)

    readonly property var columnWidths: [0, 100, 80, 100, 50]

    focusPolicy: Qt.StrongFocus

    function columnWidth(column) {
        const fixed = columnWidths.reduce((sum, width) => sum + width, 0)
        return column === 0 ? Math.max(200, view.width - fixed) : columnWidths[column]
    }

    function openMenu(row) {
        menuRow = row
        const cell = view.itemAtCell(Qt.point(0, row))
        if (cell)
            menu.popup(cell, 0, cell.height)
        else
            menu.popup()
    }

    function moveTo(row) {
        if (row < 0 || row >= rows.rowCount())
            return
        rows.select(row)
        view.positionViewAtRow(row, TableView.Contain)
    }

    Keys.onPressed: event => {
        if (event.key === Qt.Key_Down) {
            moveTo(rows.currentRow + 1)
        } else if (event.key === Qt.Key_Up) {
            moveTo(Math.max(rows.currentRow - 1, 0))
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            if (rows.currentRow >= 0)
                revealRequested(rows.pathAt(rows.currentRow))
        } else if (event.matches(StandardKey.Copy)) {
            FileActions.copyPaths(rows.selectedPaths)
        } else if (event.key === Qt.Key_Menu && rows.currentRow >= 0) {
            openMenu(rows.currentRow)
        } else {
            return
        }
        event.accepted = true
    }

    HorizontalHeaderView {
        id: header

        objectName: "largestFilesHeader"
        syncView: view
        width: parent.width
        clip: true

        // A sortable header is a button Tab reaches (Space or Return sorts by it); a click sorts
        // without taking the keyboard from the rows.
        delegate: AbstractButton {
            id: headerCell

            required property int column
            required property var model
            readonly property bool sorted: root.rows.sortColumn === column
            readonly property bool sortable: column === 0 || column === 1 || column === 3

            text: model.display
            implicitHeight: 26
            enabled: sortable
            focusPolicy: sortable ? Qt.TabFocus : Qt.NoFocus
            onClicked: root.rows.sortBy(column)
            Accessible.role: Accessible.ColumnHeader
            Accessible.name: text
            Accessible.description: sorted ? (root.rows.sortOrder === Qt.AscendingOrder ? "Sorted ascending" : "Sorted descending") : ""

            background: Rectangle {
                color: Theme.controlBackground

                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: 1
                    color: Theme.separator
                }

                FocusRing {
                    shown: headerCell.visualFocus
                    outset: 0
                }
            }

            contentItem: Row {
                leftPadding: 8
                spacing: 4

                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: headerCell.text
                    font: Theme.weighted(Theme.caption, headerCell.sorted ? Font.DemiBold : Font.Normal)
                    color: Theme.secondary
                }

                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: headerCell.sorted
                    symbol: root.rows.sortOrder === Qt.AscendingOrder ? "chevron.up" : "chevron.down"
                    size: 11
                    color: Theme.secondary
                }
            }
        }
    }

    TableView {
        id: view

        objectName: "largestFilesTableView"
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true
        model: root.rows
        boundsBehavior: Flickable.StopAtBounds
        // The wheel over the rows scrolls the page, which would otherwise stop in the middle of
        // the table until the table had reached its end; the table scrolls by its scroll bar
        // (dragged, or the wheel over it) and follows the keys.
        interactive: false
        columnWidthProvider: column => root.columnWidth(column)
        rowHeightProvider: () => 40
        onWidthChanged: forceLayout()

        ScrollBar.vertical: ScrollBar {
            id: scrollBar

            WheelHandler {
                onWheel: event => event.angleDelta.y < 0 ? scrollBar.increase() : scrollBar.decrease()
            }
        }

        // What the cells report of the pointer.
        signal rowPressed(int row, int modifiers)
        signal rowDoubleClicked(int row)
        signal contextMenuRequested(int row)

        delegate: LargestFileCell {}

        onRowPressed: (row, modifiers) => {
            root.forceActiveFocus()
            root.rows.select(row, modifiers)
        }
        onRowDoubleClicked: row => root.revealRequested(root.rows.pathAt(row))
        onContextMenuRequested: row => {
            root.menuRow = row
            menu.popup()
        }
    }

    FocusRing {
        shown: root.visualFocus
    }

    Menu {
        id: menu

        objectName: "largestFilesMenu"

        SymbolMenuItem {
            objectName: "revealMenuItem"
            text: "Reveal in File Manager"
            symbol: "folder"
            onTriggered: root.revealRequested(root.rows.pathAt(root.menuRow))
        }
        SymbolMenuItem {
            objectName: "copyPathMenuItem"
            text: "Copy Path"
            symbol: "doc.on.doc"
            onTriggered: FileActions.copyPaths([root.rows.pathAt(root.menuRow)])
        }
        MenuSeparator {}
        SymbolMenuItem {
            objectName: "openMenuItem"
            text: "Open"
            symbol: "arrow.up.right.square"
            onTriggered: root.openRequested(root.rows.pathAt(root.menuRow))
        }
    }
}
