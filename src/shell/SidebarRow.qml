import QtQuick
import QtQuick.Controls.Basic
import Tessarine.App
import Tessarine.Design

// A sidebar row that shows one main view; it is highlighted while that view is on screen.
AbstractButton {
    id: row

    property string symbol
    property int view
    readonly property bool selected: AppState.currentView === view

    width: parent ? parent.width : implicitWidth
    implicitHeight: 30
    leftPadding: Theme.spacingSmall
    font: Theme.body
    Accessible.role: Accessible.PageTab
    Accessible.name: text

    onClicked: AppState.currentView = view

    contentItem: Row {
        spacing: Theme.spacingSmall
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            symbol: row.symbol
            size: 17
            color: Theme.accent
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: row.text
            font: row.selected ? Theme.weighted(row.font, Font.Medium) : row.font
            color: Theme.primary
        }
    }

    background: Rectangle {
        radius: Theme.radiusSmall
        color: row.selected ? Theme.withOpacity(Theme.accent, 0.15)
                            : (row.hovered ? Theme.sidebarSelection : "transparent")

        FocusRing {
            shown: row.visualFocus
            controlRadius: parent.radius
        }
    }
}
