import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// One reported item: when, whether folder or file, its name and, when known, its size.
RowLayout {
    id: row

    required property string timestamp
    required property string name
    required property bool isFolder
    required property string size

    Accessible.role: Accessible.ListItem
    Accessible.name: (isFolder ? "Folder " : "File ") + name + (size === "" ? "" : ", " + size) + ", " + timestamp

    implicitHeight: 22
    spacing: 6

    Text {
        Layout.preferredWidth: 70
        text: row.timestamp
        font: Theme.monospaced(Theme.caption)
        color: Theme.secondary
    }

    Icon {
        Layout.preferredWidth: 14
        symbol: row.isFolder ? "folder.fill" : "doc.fill"
        size: 12
        color: row.isFolder ? Theme.orange : Theme.blue
    }

    Text {
        Layout.fillWidth: true
        text: row.name
        font: Theme.callout
        color: Theme.primary
        elide: Text.ElideMiddle
    }

    Text {
        visible: row.size !== ""
        text: row.size
        font: Theme.monospaced(Theme.caption)
        color: Theme.secondary
    }
}
