import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// A chart card's header: its symbol and title, then whatever the card adds at the trailing end.
RowLayout {
    id: header

    required property string title
    required property string symbol
    required property color symbolColor
    default property alias trailing: trailingRow.data

    Layout.fillWidth: true
    // Fixed, so that a control appearing at the end does not resize the chart below.
    Layout.preferredHeight: 24
    spacing: Theme.spacingSmall

    SectionHeader {
        title: header.title
        symbol: header.symbol
        symbolColor: header.symbolColor
    }

    Item { Layout.fillWidth: true }

    Row {
        id: trailingRow

        spacing: Theme.spacingSmall
    }
}
