import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design
import Tessarine.Screens

// How the application is used, in seven sections picked from a sidebar; opens on the first.
Rectangle {
    id: help

    // Each section's sidebar title and symbol, and the page that explains it.
    readonly property var sections: [
        { title: "Getting Started", symbol: "play.circle.fill", page: gettingStarted },
        { title: "Scanning Folders", symbol: "folder.badge.gearshape", page: scanningFolders },
        { title: "Understanding Results", symbol: "chart.pie.fill", page: understandingResults },
        { title: "Folder Treemap", symbol: "square.grid.2x2.fill", page: folderTreemap },
        { title: "History & Export", symbol: "clock.arrow.circlepath", page: historyExport },
        { title: "Keyboard Shortcuts", symbol: "keyboard.fill", page: shortcuts },
        { title: "Tips & Best Practices", symbol: "lightbulb.fill", page: tips }
    ]
    property alias selectedSection: sidebar.currentIndex

    color: Theme.contentBackground

    HelpSidebar {
        id: sidebar
        objectName: "helpSidebar"
        width: 220
        height: parent.height
        sections: help.sections
    }

    Rectangle {
        anchors.left: sidebar.right
        width: 1
        height: parent.height
        color: Theme.separator
    }

    Flickable {
        id: detail
        anchors.left: sidebar.right
        anchors.leftMargin: 1
        anchors.right: parent.right
        height: parent.height
        contentHeight: page.height + 2 * Theme.spacingSection
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}

        Loader {
            id: page
            objectName: "helpPage"
            x: Theme.spacingSection
            y: Theme.spacingSection
            width: detail.width - 2 * Theme.spacingSection
            sourceComponent: help.sections[help.selectedSection].page
            onLoaded: {
                item.width = Qt.binding(() => page.width)
                detail.contentY = 0
            }
        }
    }

    Component { id: gettingStarted; GettingStartedSection {} }
    Component { id: scanningFolders; ScanningFoldersSection {} }
    Component { id: understandingResults; UnderstandingResultsSection {} }
    Component { id: folderTreemap; FolderTreemapSection {} }
    Component { id: historyExport; HistoryExportSection {} }
    Component { id: shortcuts; ShortcutsSection {} }
    Component { id: tips; TipsSection {} }
}
