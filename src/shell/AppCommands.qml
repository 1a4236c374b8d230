import QtQuick
import Tessarine.App

// The application's menu commands and their keyboard shortcuts. The shortcuts work from every
// window of the application, as menu commands do.
Item {
    signal helpRequested
    signal settingsRequested
    // The menu's "Close Window": the menu is the main window's, so it closes that window.
    signal closeWindowRequested
    signal quitRequested
    signal importRequested

    function newScan() {
        AppState.showFolderPicker = true
    }

    function viewHistory() {
        AppState.currentView = AppState.History
    }

    Shortcut {
        sequence: "Ctrl+N"
        context: Qt.ApplicationShortcut
        onActivated: newScan()
    }

    Shortcut {
        sequence: "Ctrl+I"
        context: Qt.ApplicationShortcut
        onActivated: importRequested()
    }

    Shortcut {
        sequence: "Ctrl+Shift+H"
        context: Qt.ApplicationShortcut
        onActivated: viewHistory()
    }

    Shortcut {
        // "?" is a shifted key on most layouts, and not every platform folds the Shift away.
        sequences: ["Ctrl+?", "Ctrl+Shift+?"]
        context: Qt.ApplicationShortcut
        onActivated: helpRequested()
    }

    Shortcut {
        sequence: "Ctrl+,"
        context: Qt.ApplicationShortcut
        onActivated: settingsRequested()
    }

    Shortcut {
        sequence: "Ctrl+Q"
        context: Qt.ApplicationShortcut
        onActivated: quitRequested()
    }
}
