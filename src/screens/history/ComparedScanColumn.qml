import QtQuick
import Tessarine.Design
import Tessarine.Screens

// One side of the comparison: which scan, then its four totals, row by row beside the changes.
Column {
    id: column

    property string label
    property analysisResult result
    property ChangeListModel rows
    property real headerHeight: 56
    property real rowHeight: 40
    property bool showsAfter: false

    spacing: 0

    Column {
        height: column.headerHeight
        width: parent.width
        spacing: 2
        Accessible.role: Accessible.Grouping
        Accessible.name: column.label + ": " + column.result.rootName + ", "
                         + Format.absoluteDate(column.result.knownScanDate)
        Text {
            text: column.label
            font: Theme.caption
            color: Theme.secondary
        }
        Text {
            width: parent.width
            text: column.result.rootName
            font: Theme.headline
            color: Theme.primary
            elide: Text.ElideRight
        }
        Text {
            text: Format.absoluteDate(column.result.knownScanDate)
            font: Theme.caption
            color: Theme.secondary
        }
    }

    Repeater {
        model: column.rows
        delegate: Column {
            required property string title
            required property string beforeText
            required property string afterText
            height: column.rowHeight
            width: column.width
            Text {
                text: parent.title
                font: Theme.caption
                color: Theme.secondary
            }
            Text {
                text: column.showsAfter ? parent.afterText : parent.beforeText
                font: Theme.weighted(Theme.body, Font.Medium)
                color: Theme.primary
            }
        }
    }
}
