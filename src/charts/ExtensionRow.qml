import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// One extension: its chip in its category's colour, a bar of its share of the scanned bytes (never
// thinner than 4 points so a small one still shows), and its size and file count.
RowLayout {
    id: row

    required property string displayName
    required property string colorName
    required property double totalSize
    required property double fileCount
    required property double fraction

    spacing: 12
    Accessible.role: Accessible.ListItem
    Accessible.name: displayName + ", " + Format.byteCount(totalSize) + ", " + Format.count(fileCount) + " files"

    Item {
        implicitWidth: 70
        implicitHeight: chip.height

        Rectangle {
            id: chip

            width: Math.min(chipText.implicitWidth + 16, 70)
            height: chipText.implicitHeight + 8
            radius: 4
            color: Theme.withOpacity(Theme.named(row.colorName), 0.15)

            Text {
                id: chipText

                anchors.centerIn: parent
                width: Math.min(implicitWidth, 54)
                text: row.displayName
                font: Theme.weighted(Theme.caption, Font.Medium)
                color: Theme.named(row.colorName)
                elide: Text.ElideRight
            }
        }
    }

    Rectangle {
        id: track

        Layout.fillWidth: true
        implicitHeight: 8
        radius: 2
        color: Theme.withOpacity(Theme.secondary, 0.1)

        Rectangle {
            height: parent.height
            width: Math.max(track.width * row.fraction, 4)
            radius: 2
            color: Theme.withOpacity(Theme.named(row.colorName), 0.6)
        }
    }

    Column {
        Layout.preferredWidth: 80
        spacing: 2

        Text {
            anchors.right: parent.right
            text: Format.byteCount(row.totalSize)
            font: Theme.tabularDigits(Theme.caption, Font.Medium)
            color: Theme.primary
        }

        Text {
            anchors.right: parent.right
            text: Format.count(row.fileCount) + " files"
            font: Theme.extraSmall
            color: Theme.tertiary
        }
    }
}
