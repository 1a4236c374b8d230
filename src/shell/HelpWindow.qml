import QtQuick
import Tessarine.Design
import Tessarine.Screens

// The help window, opened from the Help menu and independent of the main window.
Window {
    id: help

    function showHelp() {
        // Opened anew, help starts again from its first section.
        if (!visible)
            view.selectedSection = 0
        show()
        raise()
        requestActivate()
    }

    title: "Tessarine Help"
    width: 850
    height: 650
    color: Theme.windowBackground

    // Closes the help window alone while it has the keyboard, as the main window's does for it.
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: help.close()
    }

    HelpView {
        id: view
        anchors.fill: parent
    }
}
