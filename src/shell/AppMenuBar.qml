import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls.impl
import Tessarine.Design

// The window's menus; each entry runs one of the application commands and shows its shortcut.
MenuBar {
    id: bar

    required property AppCommands commands

    font: Theme.body

    // Every title and entry carries a mnemonic (the letter after "&"), unique among its
    // neighbours: Alt+F opens this menu, then Alt+N runs its first entry.
    Menu {
        objectName: "fileMenu"
        title: "&File"
        AppMenuItem {
            text: "&New Scan..."
            shortcutText: "Ctrl+N"
            onTriggered: bar.commands.newScan()
        }
        AppMenuItem {
            text: "&Import Scan..."
            shortcutText: "Ctrl+I"
            onTriggered: bar.commands.importRequested()
        }
        AppMenuItem {
            text: "&View History"
            shortcutText: "Ctrl+Shift+H"
            onTriggered: bar.commands.viewHistory()
        }
        AppMenuItem {
            text: "&Settings…"
            shortcutText: "Ctrl+,"
            onTriggered: bar.commands.settingsRequested()
        }
        MenuSeparator {}
        AppMenuItem {
            text: "&Close Window"
            shortcutText: "Ctrl+W"
            onTriggered: bar.commands.closeWindowRequested()
        }
        AppMenuItem {
            text: "&Quit"
            shortcutText: "Ctrl+Q"
            onTriggered: bar.commands.quitRequested()
        }
    }

    Menu {
        objectName: "helpMenu"
        title: "&Help"
        AppMenuItem {
            text: "Tessarine &Help"
            shortcutText: "Ctrl+?"
            onTriggered: bar.commands.helpRequested()
        }
    }

    delegate: MenuBarItem {
        id: item
        font: Theme.body
        // The mnemonic's marker is not read out.
        Accessible.role: Accessible.MenuItem
        Accessible.name: text.replace("&", "")
        contentItem: MnemonicLabel {
            text: item.text
            font: item.font
            color: Theme.primary
            verticalAlignment: Text.AlignVCenter
        }
        background: Rectangle {
            radius: Theme.radiusSmall - 2
            color: item.highlighted ? Theme.withOpacity(Theme.accent, 0.14) : "transparent"
        }
    }

    background: Rectangle {
        implicitHeight: 28
        color: Theme.sidebarBackground
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.separator
        }
    }
}
