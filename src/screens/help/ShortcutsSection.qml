import QtQuick
import Tessarine.Design
import Tessarine.Screens

HelpSection {
    title: "Keyboard Shortcuts"
    introduction: "Speed up your workflow with these keyboard shortcuts."

    HelpCard {
        title: "Navigation"
        icon: "keyboard.fill"
        tint: Theme.blue
        KeyboardShortcutRow { shortcut: "N"; modifiers: "Cmd"; description: "New Scan - Open folder picker" }
        Rectangle { width: parent.width; height: 1; color: Theme.separator }
        KeyboardShortcutRow { shortcut: "I"; modifiers: "Cmd"; description: "Import Scan - Open a scan made elsewhere" }
        Rectangle { width: parent.width; height: 1; color: Theme.separator }
        KeyboardShortcutRow { shortcut: "Shift + H"; modifiers: "Cmd"; description: "View History" }
    }

    HelpCard {
        title: "File Actions"
        icon: "doc.fill"
        tint: Theme.green
        HelpText { note: true; text: "When a file is selected in the Largest Files table:" }
        HelpText { lead: true; text: "Right-click to access:" }
        HelpList { lines: ["  - Reveal in File Manager", "  - Copy Path", "  - Open File"] }
    }

    HelpCard {
        title: "Window"
        icon: "macwindow"
        tint: Theme.purple
        KeyboardShortcutRow { shortcut: ","; modifiers: "Cmd"; description: "Open Settings" }
        KeyboardShortcutRow { shortcut: "W"; modifiers: "Cmd"; description: "Close Window" }
        KeyboardShortcutRow { shortcut: "Q"; modifiers: "Cmd"; description: "Quit Application" }
    }
}
