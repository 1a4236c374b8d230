import QtQuick
import Tessarine.Design
import Tessarine.Screens

// The differences between the two scans' totals, each level with its row.
Column {
    id: column

    property ChangeListModel rows
    property real headerHeight: 56
    property real rowHeight: 40

    Item {
        width: 1
        height: column.headerHeight
    }

    Repeater {
        model: column.rows
        // Under an empty caption line, so that each change sits level with the values beside it.
        delegate: Column {
            id: row
            required property string title
            required property string beforeText
            required property string afterText
            required property string changeText
            required property string symbol
            required property string color
            width: column.width
            height: column.rowHeight
            // The row read whole: what changed, from what to what, and by how much.
            Accessible.role: Accessible.ListItem
            Accessible.name: title + ", " + beforeText + " to " + afterText + ", " + changeText
            Text {
                text: " "
                font: Theme.caption
            }
            ChangeText {
                anchors.horizontalCenter: parent.horizontalCenter
                changeText: row.changeText
                symbol: row.symbol
                color: row.color
            }
        }
    }
}
