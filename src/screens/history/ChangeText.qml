import QtQuick
import Tessarine.Design
import Tessarine.Screens

// A difference with its arrow, in red for growth and green for shrinkage; a dash for none.
Row {
    property string changeText
    property string symbol
    property string color

    spacing: 3

    Icon {
        anchors.verticalCenter: parent.verticalCenter
        visible: parent.symbol !== ""
        symbol: parent.symbol
        size: 13
        color: Theme.named(parent.color)
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: parent.changeText
        font: Theme.weighted(Theme.body, Font.Medium)
        color: Theme.named(parent.color)
    }
}
