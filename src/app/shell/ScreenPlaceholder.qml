import QtQuick
import QtQuick.Layouts
import Tessarine.App

// A screen reduced to its symbol, title, one line and an optional action, centred on the window
// background: what a view shows while its full layout is not there.
Rectangle {
    id: placeholder

    property string symbol
    property string title
    property string subtitle
    property string actionText
    property string actionSymbol
    signal actionTriggered

    color: Theme.contentBackground

    ColumnLayout {
        anchors.centerIn: parent
        spacing: Theme.spacingLarge

        Icon {
            Layout.alignment: Qt.AlignHCenter
            symbol: placeholder.symbol
            size: 56
            color: Theme.accent
        }

        Text {
            Layout.alignment: Qt.AlignHCenter
            text: placeholder.title
            font: Theme.weighted(Theme.largeTitle, Font.Bold)
            color: Theme.primary
        }

        Text {
            Layout.alignment: Qt.AlignHCenter
            text: placeholder.subtitle
            font: Theme.title3
            color: Theme.secondary
        }

        ProminentButton {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: Theme.spacingMedium
            visible: placeholder.actionText !== ""
            text: placeholder.actionText
            symbol: placeholder.actionSymbol
            onClicked: placeholder.actionTriggered()
        }
    }
}
