import QtQuick
import Tessarine.App

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

    ScreenPlaceholder {
        anchors.fill: parent
        symbol: "info.circle.fill"
        title: help.title
        subtitle: "Guides to scanning, the dashboard and the history"
    }
}
