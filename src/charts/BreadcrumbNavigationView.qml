import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design

// Where the treemap has drilled to: the root, then each folder drilled into. Every entry but the
// last leads back to it.
Rectangle {
    id: breadcrumbs

    property string rootName
    property list<string> path

    signal selectRoot()
    signal selectIndex(int index)

    implicitWidth: entries.implicitWidth + 16
    implicitHeight: entries.implicitHeight + 12
    radius: Theme.radiusSmall
    color: Theme.withOpacity(Theme.secondary, 0.1)

    component CrumbButton: Button {
        id: crumb

        property string symbol
        property color tint: Theme.blue

        padding: 0
        font: Theme.caption
        Accessible.role: Accessible.Button
        Accessible.name: text
        contentItem: ButtonLabel {
            text: crumb.text
            symbol: crumb.symbol
            font: crumb.font
            color: crumb.tint
        }
        background: Item {
            FocusRing {
                shown: crumb.visualFocus
                controlRadius: Theme.radiusSmall - 2
            }
        }

        HoverHandler { cursorShape: crumb.enabled ? Qt.PointingHandCursor : Qt.ArrowCursor }
    }

    Row {
        id: entries

        x: 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        CrumbButton {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "folder.fill"
            text: breadcrumbs.rootName
            onClicked: breadcrumbs.selectRoot()
        }

        Repeater {
            model: breadcrumbs.path

            Row {
                id: entry

                required property int index
                required property string modelData
                readonly property bool isLast: index === breadcrumbs.path.length - 1

                anchors.verticalCenter: parent.verticalCenter
                spacing: 4

                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    symbol: "chevron.right"
                    size: Theme.extraSmall.pixelSize + 2
                    color: Theme.tertiary
                }

                CrumbButton {
                    anchors.verticalCenter: parent.verticalCenter
                    text: entry.modelData
                    tint: entry.isLast ? Theme.primary : Theme.blue
                    enabled: !entry.isLast
                    onClicked: breadcrumbs.selectIndex(entry.index)
                }
            }
        }
    }
}
