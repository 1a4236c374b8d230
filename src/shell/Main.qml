import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design

// The main window: the sidebar and the current screen, the menu commands, and the one error
// alert that every screen of the window shares.
ApplicationWindow {
    id: window

    width: 1200
    height: 800
    minimumWidth: 900
    minimumHeight: 600
    visible: true
    title: "Tessarine"
    color: Theme.windowBackground
    font: Theme.body
    // What the standard controls (text fields, menus, the sort picker's list) draw with, so that
    // they follow the appearance with everything else.
    palette.window: Theme.windowBackground
    palette.windowText: Theme.primary
    palette.base: Theme.textBackground
    palette.text: Theme.primary
    palette.button: Theme.controlBackground
    palette.buttonText: Theme.primary
    palette.placeholderText: Theme.tertiary
    palette.highlight: Theme.accent
    palette.highlightedText: Theme.labelOnAccent
    palette.dark: Theme.primary

    menuBar: AppMenuBar {
        commands: commands
    }

    AppCommands {
        id: commands
        onHelpRequested: helpWindow.showHelp()
        onSettingsRequested: settingsWindow.showSettings()
        onCloseWindowRequested: window.close()
        // The engine hands the request to the application, which ends once the event loop turns.
        onQuitRequested: Qt.quit()
        onImportRequested: contentView.openImportPicker()
    }

    // Closes this window while it has the keyboard; the help window has its own.
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: window.close()
    }

    ContentView {
        id: contentView
        anchors.fill: parent
    }

    ErrorAlert {}

    HelpWindow {
        id: helpWindow
        objectName: "helpWindow"
    }

    SettingsWindow {
        id: settingsWindow
        objectName: "settingsWindow"
    }
}
