import QtQuick
import Tessarine.Design
import Tessarine.Screens

// Plain lines of secondary text, one item each.
Column {
    property list<string> lines

    width: parent ? parent.width : 0
    spacing: Theme.spacingSmall

    Repeater {
        model: parent.lines
        delegate: Text {
            required property string modelData
            width: parent.width
            text: modelData
            wrapMode: Text.Wrap
            font: Theme.body
            color: Theme.secondary
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
