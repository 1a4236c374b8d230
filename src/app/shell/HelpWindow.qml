import QtQuick
import Tessarine.App
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

    HelpView {
        anchors.fill: parent
    }
}
