import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Controls.impl
import Tessarine.Design

// One menu entry with its shortcut at the trailing edge. The shortcut itself lives with the
// command, so it also works while the menu is closed.
MenuItem {
    id: item

    property string shortcutText

    font: Theme.body
    implicitWidth: 240
    Accessible.role: Accessible.MenuItem
    // The mnemonic's marker is not read out.
    Accessible.name: text.replace("&", "")
    Accessible.description: shortcutText

    contentItem: Item {
        implicitHeight: 22
        MnemonicLabel {
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            text: item.text
            font: item.font
            color: item.highlighted ? Theme.labelOnAccent : Theme.primary
        }
        Text {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: item.shortcutText
            font: item.font
            color: item.highlighted ? Theme.labelOnAccent : Theme.secondary
        }
    }

    background: Rectangle {
        implicitHeight: 26
        radius: Theme.radiusSmall - 2
        color: item.highlighted ? Theme.accent : "transparent"
    }
}
