import QtQuick
import QtQuick.Controls.Basic
import Tessarine.App

// The window's menus; each entry runs one of the application commands and shows its shortcut.
MenuBar {
    id: bar

    required property AppCommands commands

    font: Theme.body

    Menu {
        title: "File"
        AppMenuItem {
            text: "New Scan..."
            shortcutText: "Ctrl+N"
            onTriggered: bar.commands.newScan()
        }
        AppMenuItem {
            text: "View History"
            shortcutText: "Ctrl+Shift+H"
            onTriggered: bar.commands.viewHistory()
        }
    }

    Menu {
        title: "Help"
        AppMenuItem {
            text: "Tessarine Help"
            shortcutText: "Ctrl+?"
            onTriggered: bar.commands.helpRequested()
        }
    }

    delegate: MenuBarItem {
        id: item
        font: Theme.body
        Accessible.role: Accessible.MenuItem
        Accessible.name: text
        contentItem: Text {
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
