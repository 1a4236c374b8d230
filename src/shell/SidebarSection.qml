import QtQuick
import Tessarine.Design

// A titled group of sidebar rows; the rows are its children.
Column {
    property string title
    default property alias rows: rowColumn.data

    width: parent.width
    spacing: 2

    Text {
        leftPadding: Theme.spacingSmall
        bottomPadding: 2
        text: parent.title
        font: Theme.weighted(Theme.subheadline, Font.DemiBold)
        color: Theme.secondary
    }

    Column {
        id: rowColumn
        width: parent.width
        spacing: 1
    }
}
