import QtQuick
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Screens

// What changed inside the folder: one line per category or file, with its size before and after
// and the difference. Hidden when nothing did.
ColumnLayout {
    id: list

    property string title
    property ChangeListModel rows

    visible: rows && rows.count > 0
    spacing: Theme.spacingSmall

    Text {
        text: list.title
        font: Theme.headline
        color: Theme.primary
    }

    Repeater {
        model: list.rows
        delegate: RowLayout {
            id: line
            required property string title
            required property string detail
            required property string beforeText
            required property string afterText
            required property string changeText
            required property string symbol
            required property string color
            required property string icon
            required property string iconColor

            Layout.fillWidth: true
            spacing: Theme.spacingSmall
            Accessible.role: Accessible.ListItem
            Accessible.name: title + (detail === "" ? "" : ", " + detail) + ", " + beforeText
                             + " to " + afterText + ", " + changeText

            Icon {
                Layout.preferredWidth: 20
                symbol: line.icon
                size: 14
                color: Theme.named(line.iconColor)
            }
            Column {
                Layout.fillWidth: true
                Text {
                    width: parent.width
                    text: line.title
                    font: Theme.body
                    color: Theme.primary
                    elide: Text.ElideRight
                }
                Text {
                    width: parent.width
                    visible: line.detail !== ""
                    text: line.detail
                    font: Theme.caption
                    color: Theme.secondary
                    elide: Text.ElideMiddle
                }
            }
            Text {
                text: line.beforeText + "  →  " + line.afterText
                font: Theme.caption
                color: Theme.secondary
            }
            ChangeText {
                Layout.preferredWidth: 110
                changeText: line.changeText
                symbol: line.symbol
                color: line.color
            }
        }
    }
}
