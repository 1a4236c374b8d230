import QtQuick
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Screens

// The latest items the scan reported; the log holds more than it shows.
ColumnLayout {
    id: view

    required property ActivityLogModel entries

    spacing: Theme.spacingMedium

    RowLayout {
        Layout.fillWidth: true

        ScanSectionHeader {
            title: "Activity Log"
            icon: "list.bullet.rectangle.fill"
        }

        Item { Layout.fillWidth: true }

        Text {
            text: view.entries.count + " entries"
            font: Theme.caption
            color: Theme.secondary
        }
    }

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: Math.max(rows.implicitHeight + 12, 36)
        radius: 8
        color: Theme.withOpacity(Theme.textBackground, 0.5)
        border.width: 1
        border.color: Theme.separator

        Column {
            id: rows

            x: 10
            y: 6
            width: parent.width - 20

            Repeater {
                model: FirstRowsModel {
                    limit: 15
                    sourceModel: view.entries
                }

                ActivityLogRow { width: rows.width }
            }
        }
    }
}
