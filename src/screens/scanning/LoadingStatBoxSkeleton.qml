import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// A statistics box before the first snapshot: its label over a grey bar.
SkeletonSurface {
    id: box

    property string label

    implicitHeight: 58

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 6

        Text {
            text: box.label
            font: Theme.caption
            color: Theme.secondary
        }

        SkeletonBar {
            width: 50
            height: 16
        }
    }
}
