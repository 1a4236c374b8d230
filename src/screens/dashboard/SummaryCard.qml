import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// One headline figure of a result. Cards fade and grow into place after a short random delay, so
// the four of them settle one after another in no fixed order.
Rectangle {
    id: card

    required property string title
    required property string value
    property string subtitle
    required property string icon
    property string colorName
    property bool isAnimated: false

    implicitHeight: content.implicitHeight + 2 * Theme.cardPadding
    radius: Theme.radiusCard
    color: Theme.controlBackground
    border.width: 1
    border.color: Theme.withOpacity(Theme.named(colorName), 0.2)
    scale: isAnimated ? 1 : 0.95
    opacity: isAnimated ? 1 : 0
    Accessible.role: Accessible.Grouping
    Accessible.name: title + ", " + value

    Behavior on scale {
        NumberAnimation { duration: Theme.springDuration; easing.type: Theme.springEasing }
    }
    Behavior on opacity {
        NumberAnimation { duration: Theme.springDuration; easing.type: Theme.springEasing }
    }

    Timer {
        interval: Math.random() * 200
        running: true
        onTriggered: card.isAnimated = true
    }

    ColumnLayout {
        id: content

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.cardPadding
        spacing: 6

        Icon {
            symbol: card.icon
            size: Theme.title2.pixelSize + 5
            color: Theme.named(card.colorName)
        }

        Text {
            Layout.topMargin: 2
            text: card.title
            font: Theme.caption
            color: Theme.secondary
        }

        Text {
            Layout.fillWidth: true
            text: card.value
            font: Theme.weighted(Theme.title, Font.Bold)
            color: Theme.primary
            elide: Text.ElideRight
        }

        Text {
            visible: card.subtitle !== ""
            text: card.subtitle
            font: Theme.caption
            color: Theme.secondary
        }
    }
}
