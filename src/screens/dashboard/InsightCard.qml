import QtQuick
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Screens

// One detected pattern: its kind's symbol on a tinted tile, what it is, and how much it weighs.
Rectangle {
    id: card

    required property patternInsight insight
    required property string symbol
    required property string colorName
    readonly property color tint: Theme.named(card.colorName)

    implicitHeight: content.implicitHeight + 2 * 14
    radius: 10
    color: Theme.withOpacity(Theme.secondary, 0.05)
    Accessible.role: Accessible.Grouping
    Accessible.name: insight.title + ", " + Format.byteCount(insight.affectedSize) + " affected"
    Accessible.description: insight.description

    RowLayout {
        id: content

        anchors.fill: parent
        anchors.margins: 14
        spacing: Theme.spacingMedium

        Rectangle {
            Layout.alignment: Qt.AlignTop
            implicitWidth: 36
            implicitHeight: 36
            radius: 8
            color: Theme.withOpacity(card.tint, 0.1)

            Icon {
                anchors.centerIn: parent
                symbol: card.symbol
                size: 18
                color: card.tint
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignTop
            spacing: 3

            Text {
                Layout.fillWidth: true
                text: card.insight.title
                font: Theme.weighted(Theme.subheadline, Font.Medium)
                color: Theme.primary
                wrapMode: Text.Wrap
            }

            Text {
                Layout.fillWidth: true
                text: card.insight.description
                font: Theme.caption
                color: Theme.secondary
                wrapMode: Text.Wrap
            }

            Text {
                visible: card.insight.affectedSize >= 1
                text: Format.byteCount(card.insight.affectedSize) + " affected"
                font: Theme.extraSmall
                color: card.tint
            }
        }
    }
}
