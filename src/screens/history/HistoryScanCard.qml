import QtQuick
import QtQuick.Controls.Basic
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// One saved scan: its selection circle, folder, date and size, and for a scan made elsewhere
// where it came from and when. A click opens it on the dashboard; the circle and the context menu
// select it.
Rectangle {
    id: card

    required property HistoryListModel scans
    required property scanSummary summary
    required property string rootName
    required property string rootPath
    required property double totalSize
    required property double fileCount
    required property bool selected

    // Asks for the context menu, which the list shares among its cards: one menu per card would
    // make every card several times as costly to create.
    signal menuRequested(scanSummary summary, bool selected)

    implicitHeight: 72
    radius: Theme.radiusCard
    color: area.containsMouse ? Theme.cardHovered : Theme.controlBackground
    border.width: selected ? 2 : 0
    border.color: Theme.accent
    // Announced as what a click does: open this scan.
    Accessible.role: Accessible.Button
    Accessible.name: "Open scan of " + (rootName !== "" ? rootName : rootPath) + ", "
                     + Format.byteCount(totalSize) + ", " + Format.absoluteDate(summary.knownScanDate)
                     + (summary.isImported ? ", " + summary.importSource.label : "")
    Accessible.onPressAction: AppState.openStoredScan(card.summary)

    // The list's current card, while the list has the keyboard (only keys give it the focus).
    FocusRing {
        shown: card.ListView.isCurrentItem && card.ListView.view.activeFocus
        controlRadius: card.radius
        outset: 0
    }

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onClicked: mouse => {
            if (mouse.button === Qt.RightButton)
                card.menuRequested(card.summary, card.selected)
            else
                AppState.openStoredScan(card.summary)
        }
    }

    SelectionCircle {
        id: circle
        objectName: "selectionCircle"
        anchors.left: parent.left
        anchors.leftMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        selected: card.selected
        Accessible.role: Accessible.CheckBox
        Accessible.name: "Select scan of " + (card.rootName !== "" ? card.rootName : card.rootPath)
        Accessible.checkable: true
        Accessible.checked: card.selected
        Accessible.onToggleAction: card.scans.toggleSelection(card.summary)
        Accessible.onPressAction: card.scans.toggleSelection(card.summary)

        MouseArea {
            anchors.fill: parent
            anchors.margins: -6
            onClicked: card.scans.toggleSelection(card.summary)
        }
    }

    Rectangle {
        id: tile
        anchors.left: circle.right
        anchors.leftMargin: Theme.spacingMedium
        anchors.verticalCenter: parent.verticalCenter
        width: 48
        height: 48
        radius: Theme.radiusButton
        color: Theme.withOpacity(Theme.blue, 0.1)
        Icon {
            anchors.centerIn: parent
            symbol: "folder.fill"
            size: 22
            color: Theme.blue
        }
    }

    Column {
        anchors.left: tile.right
        anchors.leftMargin: Theme.spacingMedium
        anchors.right: dates.left
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        Text {
            width: parent.width
            text: card.rootName
            font: Theme.headline
            color: Theme.primary
            elide: Text.ElideRight
        }
        Text {
            width: parent.width
            text: card.rootPath
            font: Theme.caption
            color: Theme.secondary
            elide: Text.ElideMiddle
        }
        DetailLabel {
            objectName: "importedMark"
            visible: card.summary.isImported
            font: Theme.extraSmall
            symbol: "square.and.arrow.down"
            text: card.summary.importSource.label
            maximumWidth: parent.width
        }
    }

    Column {
        id: dates
        anchors.right: figures.left
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        Text {
            anchors.right: parent.right
            text: Format.absoluteDate(card.summary.knownScanDate)
            font: Theme.caption
            color: Theme.secondary
        }
        Text {
            anchors.right: parent.right
            text: Format.relativeDate(card.summary.knownScanDate, Format.now)
            font: Theme.extraSmall
            color: Theme.tertiary
        }
    }

    Column {
        id: figures
        anchors.right: chevron.left
        anchors.rightMargin: Theme.spacingMedium
        anchors.verticalCenter: parent.verticalCenter
        width: 120
        spacing: 2
        Text {
            anchors.right: parent.right
            text: Format.byteCount(card.totalSize)
            font: Theme.weighted(Theme.subheadline, Font.Medium)
            color: Theme.primary
        }
        Text {
            anchors.right: parent.right
            text: Format.count(card.fileCount) + " files"
            font: Theme.caption
            color: Theme.secondary
        }
    }

    Icon {
        id: chevron
        anchors.right: parent.right
        anchors.rightMargin: Theme.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        symbol: "chevron.right"
        size: 14
        color: Theme.tertiary
    }
}
