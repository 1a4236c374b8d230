import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Screens

// The sort picker and the search field of the history list.
RowLayout {
    id: bar

    required property HistoryListModel scans

    spacing: Theme.spacingMedium

    Text {
        text: "Sort"
        font: Theme.body
        color: Theme.secondary
    }

    ComboBox {
        id: sortPicker
        objectName: "sortPicker"
        Layout.preferredWidth: 160
        model: bar.scans.sortOrderLabels
        currentIndex: bar.scans.sortOrder
        font: Theme.body
        onActivated: index => bar.scans.sortOrder = index
        Accessible.role: Accessible.ComboBox
        Accessible.name: "Sort, " + displayText
        // A quiet control like the buttons beside it, not a grey slab.
        background: Rectangle {
            implicitHeight: 28
            radius: Theme.radiusSmall
            color: Theme.controlBackground
            border.width: 1
            border.color: Theme.withOpacity(Theme.primary, 0.16)

            FocusRing {
                shown: sortPicker.visualFocus
                controlRadius: parent.radius
            }
        }
    }

    Item {
        Layout.fillWidth: true
    }

    Rectangle {
        Layout.preferredWidth: 260
        implicitHeight: 28
        radius: Theme.radiusSmall
        color: Theme.controlBackground
        border.width: 1
        border.color: search.activeFocus ? Theme.accent : Theme.withOpacity(Theme.primary, 0.16)

        Icon {
            id: glass
            anchors.left: parent.left
            anchors.leftMargin: Theme.spacingSmall
            anchors.verticalCenter: parent.verticalCenter
            symbol: "magnifyingglass"
            size: 14
            color: Theme.secondary
        }

        TextField {
            id: search
            objectName: "searchField"
            anchors.left: glass.right
            anchors.right: clear.left
            anchors.verticalCenter: parent.verticalCenter
            placeholderText: "Search scans..."
            Accessible.role: Accessible.EditableText
            Accessible.name: placeholderText
            Accessible.searchEdit: true
            font: Theme.body
            background: null
            text: bar.scans.searchText
            onTextEdited: bar.scans.searchText = text
        }

        PlainButton {
            id: clear
            anchors.right: parent.right
            anchors.rightMargin: Theme.spacingTiny
            anchors.verticalCenter: parent.verticalCenter
            visible: bar.scans.searchText !== ""
            width: visible ? implicitWidth : 0
            symbol: "xmark.circle.fill"
            tint: Theme.secondary
            leftPadding: Theme.spacingTiny
            rightPadding: Theme.spacingTiny
            onClicked: bar.scans.searchText = ""
            Accessible.name: "Clear search"
        }
    }
}
