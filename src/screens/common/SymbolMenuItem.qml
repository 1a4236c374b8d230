import QtQuick
import QtQuick.Controls.Basic
import Tessarine.Design
import Tessarine.Screens

// A context menu entry with its symbol before the text; red when it destroys something.
MenuItem {
    id: item

    property string symbol
    property bool destructive: false

    font: Theme.body
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    contentItem: ButtonLabel {
        text: item.text
        symbol: item.symbol
        font: item.font
        color: item.destructive ? Theme.red : Theme.primary
    }
}
