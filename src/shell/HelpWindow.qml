import QtQuick
import Tessarine.Design
import Tessarine.Screens

// The help window, opened from the Help menu and independent of the main window.
Window {
    id: help

    function showHelp() {
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
        anchors.fill: parent
    }
}
