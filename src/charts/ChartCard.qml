import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// The card every chart of a result sits on: its sections stacked 16 points apart inside the
// standard padding.
Card {
    id: card

    default property alias content: column.data
    property real padding: 20

    implicitWidth: column.implicitWidth + 2 * padding
    implicitHeight: column.implicitHeight + 2 * padding

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: card.padding
        spacing: Theme.spacingLarge
    }
}
