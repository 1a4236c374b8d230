import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design
import Tessarine.Screens

// The help's table of contents, with the application's name and version at the bottom.
Rectangle {
    id: sidebar

    required property var sections
    property int currentIndex: 0

    color: Theme.sidebarBackground

    Column {
        id: rows
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.spacingMedium
        spacing: 2

        // Up and Down move through the sections and show each, as in a sidebar list.
        FocusSteps {
            id: rowSteps
            within: rows
        }

        function showSection(row) {
            if (row)
                row.clicked()
        }

        Keys.onUpPressed: showSection(rowSteps.step(false))
        Keys.onDownPressed: showSection(rowSteps.step(true))

        Text {
            leftPadding: Theme.spacingSmall
            bottomPadding: Theme.spacingMedium
            topPadding: Theme.spacingSmall
            text: "Tessarine Help"
            font: Theme.weighted(Theme.title2, Font.Bold)
            color: Theme.primary
        }

        Repeater {
            objectName: "helpSectionRows"
            model: sidebar.sections
            delegate: AbstractButton {
                id: row
                required property var modelData
                required property int index
                readonly property bool current: index === sidebar.currentIndex
                objectName: "helpSection_" + index
                width: parent.width
                height: 30
                leftPadding: Theme.spacingSmall
                onClicked: sidebar.currentIndex = row.index
                // The window opens with the keyboard on the section shown, so the arrows work at once.
                focus: row.current
                Accessible.role: Accessible.PageTab
                Accessible.name: modelData.title
                Accessible.selected: current

                background: Rectangle {
                    radius: 6
                    color: row.current ? Theme.withOpacity(Theme.accent, 0.15) : "transparent"

                    FocusRing {
                        shown: row.visualFocus
                        controlRadius: parent.radius
                    }
                }

                contentItem: Row {
                    spacing: Theme.spacingSmall
                    Icon {
                        anchors.verticalCenter: parent.verticalCenter
                        symbol: row.modelData.symbol
                        color: Theme.accent
                    }
                    Text {
                        anchors.verticalCenter: parent.verticalCenter
                        text: row.modelData.title
                        font: Theme.body
                        color: Theme.primary
                    }
                }
            }
        }
    }

    Column {
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: Theme.spacingLarge
        spacing: 2
        Text {
            text: "Tessarine"
            font: Theme.weighted(Theme.caption, Font.Medium)
            color: Theme.primary
        }
        Text {
            objectName: "versionLine"
            text: "Version " + AppVersion.text
            font: Theme.extraSmall
            color: Theme.secondary
        }
    }
}
