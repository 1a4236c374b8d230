import QtQuick
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Charts

// "File Extensions": the largest extensions with bars proportional to their share, ten at first
// and up to fifteen on request, with a footer for those not shown.
ChartCard {
    id: card
    Accessible.name: "File Extensions"

    required property analysisResult result

    ExtensionListModel {
        id: extensions

        result: card.result
    }

    ChartHeader {
        title: "File Extensions"
        symbol: "doc.badge.ellipsis"
        symbolColor: Theme.cyan

        PlainButton {
            objectName: "showAllExtensionsButton"
            text: extensions.showAll ? "Show Less" : "Show All"
            font: Theme.caption
            tint: Theme.blue
            padding: 2
            onClicked: {
                rowsArea.sliding = true
                extensions.showAll = !extensions.showAll
            }
        }
    }

    // "Show All" and "Show Less" open and close the list rather than jumping; the first layout
    // does not slide.
    Item {
        id: rowsArea

        property bool sliding: false

        objectName: "extensionRows"
        Layout.fillWidth: true
        implicitHeight: rows.implicitHeight
        clip: true

        Behavior on implicitHeight {
            enabled: rowsArea.sliding

            NumberAnimation {
                duration: Theme.standardDuration
                easing.type: Theme.standardEasing
                onRunningChanged: if (!running) rowsArea.sliding = false
            }
        }

        Column {
            id: rows

            width: parent.width
            spacing: 8

            Repeater {
                model: extensions

                ExtensionRow { width: parent.width }
            }
        }
    }

    RowLayout {
        objectName: "moreExtensionsFooter"
        visible: extensions.hiddenCount > 0
        Layout.fillWidth: true
        Layout.topMargin: 4 - Theme.spacingLarge + 8

        Text {
            text: "+ " + extensions.hiddenCount + " more extensions"
            font: Theme.caption
            color: Theme.secondary
        }

        Item { Layout.fillWidth: true }

        Text {
            text: Format.byteCount(extensions.hiddenSize)
            font: Theme.caption
            color: Theme.tertiary
        }
    }

    Item { Layout.fillHeight: true }
}
