import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// A performance card before the first snapshot: its title and a grey bar where the value goes.
SkeletonSurface {
    id: card

    property string title

    implicitHeight: 70

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        Row {
            spacing: 6

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 10
                height: 10
                radius: 5
                color: Theme.withOpacity(Theme.named(card.colorName), 0.5)
            }

            Text {
                text: card.title
                font: Theme.caption
                color: Theme.secondary
            }
        }

        SkeletonBar {
            width: 60
            height: 18
        }
    }
}
