import QtQuick
import Tessarine.Design

// The folders leading to the item the scan is at, separated by chevrons, on one line: a path
// that wrapped made the details below jump at every new folder.
Row {
    id: location

    required property list<string> crumbs
    // Shown instead while there is no path.
    property string emptyText

    Accessible.role: Accessible.StaticText
    Accessible.name: crumbs.length === 0 ? emptyText : crumbs.join(" / ")

    spacing: 4
    clip: true

    Text {
        visible: location.crumbs.length === 0
        text: location.emptyText
        font: Theme.caption
        color: Theme.tertiary
    }

    Repeater {
        model: location.crumbs

        Row {
            id: crumb

            required property int index
            required property string modelData

            spacing: 4

            Icon {
                id: chevron

                anchors.verticalCenter: parent.verticalCenter
                visible: crumb.index > 0
                symbol: "chevron.right"
                size: 10
                color: Theme.tertiary
            }

            // A folder name longer than the line is shortened in the middle.
            Text {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, location.width
                                - (chevron.visible ? chevron.width + crumb.spacing : 0))
                elide: Text.ElideMiddle
                text: crumb.modelData
                font: Theme.monospaced(Theme.callout)
                color: Theme.primary
            }
        }
    }
}
