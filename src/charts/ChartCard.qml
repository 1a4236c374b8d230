import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// The card every chart of a result sits on: its sections stacked 16 points apart inside the
// standard card padding.
Card {
    id: card

    default property alias content: column.data

    implicitWidth: column.implicitWidth + 2 * Theme.cardPadding
    implicitHeight: column.implicitHeight + 2 * Theme.cardPadding

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.cardPadding
        spacing: Theme.spacingLarge
    }
}
