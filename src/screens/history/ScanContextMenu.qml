import QtQuick
import QtQuick.Controls.Basic
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// The context menu of a saved scan: open it, pick it for a comparison, or delete it at once.
Menu {
    id: menu

    required property HistoryListModel scans
    property analysisResult result
    property bool selected: false

    function openFor(result, selected) {
        menu.result = result
        menu.selected = selected
        popup()
    }

    objectName: "scanMenu"

    SymbolMenuItem {
        text: "View Details"
        symbol: "eye"
        onTriggered: AppState.openResult(menu.result)
    }
    SymbolMenuItem {
        text: menu.selected ? "Deselect" : "Select"
        symbol: menu.selected ? "checkmark.circle" : "circle"
        onTriggered: menu.scans.toggleSelection(menu.result)
    }
    MenuSeparator {}
    SymbolMenuItem {
        text: "Delete"
        symbol: "trash"
        destructive: true
        onTriggered: AppState.deleteScan(menu.result)
    }
}
