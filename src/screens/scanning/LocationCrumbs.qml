import QtQuick
import Tessarine.App

// The folders leading to the item the scan is at, separated by chevrons.
Flow {
    id: location

    required property list<string> crumbs
    // Shown instead while there is no path.
    property string emptyText

    spacing: 4

    Text {
        visible: location.crumbs.length === 0
        text: location.emptyText
        font: Theme.caption
        color: Theme.tertiary
    }

    Repeater {
        model: location.crumbs

        Row {
            required property int index
            required property string modelData

            spacing: 4

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                visible: index > 0
                symbol: "chevron.right"
                size: 10
                color: Theme.tertiary
            }

            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: modelData
                font: Theme.monospaced(Theme.callout)
                color: Theme.primary
            }
        }
    }
}
