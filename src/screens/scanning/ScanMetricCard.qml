import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// One performance figure: symbol and title, the value and its unit, on a tint of its colour.
Rectangle {
    id: card

    property string title
    property string value
    property string unit
    property string icon
    property string colorName

    implicitHeight: content.implicitHeight + 24
    radius: 8
    color: Theme.withOpacity(Theme.named(colorName), 0.1)
    Accessible.role: Accessible.Grouping
    Accessible.name: title + ", " + value + (unit === "" ? "" : " " + unit)

    ColumnLayout {
        id: content

        anchors.fill: parent
        anchors.margins: 12
        spacing: 6

        Row {
            spacing: 5

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                symbol: card.icon
                size: 12
                color: Theme.named(card.colorName)
            }

            Text {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, content.width - 17)
                elide: Text.ElideRight
                text: card.title
                font: Theme.caption
                color: Theme.secondary
            }
        }

        Row {
            spacing: 4

            Text {
                id: valueText

                text: card.value
                font: Theme.monospaced(Theme.title3, Font.DemiBold)
                color: Theme.primary
            }

            Text {
                anchors.baseline: valueText.baseline
                visible: card.unit !== ""
                text: card.unit
                font: Theme.extraSmall
                color: Theme.secondary
            }
        }
    }
}
