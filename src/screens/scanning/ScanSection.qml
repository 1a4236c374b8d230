import QtQuick
import QtQuick.Layouts
import Tessarine.Design

// A titled block of the scan details; its children stack under the header.
ColumnLayout {
    property alias title: header.title
    property alias icon: header.icon
    default property alias content: body.data

    Layout.fillWidth: true
    spacing: Theme.spacingMedium

    ScanSectionHeader { id: header }

    ColumnLayout {
        id: body

        Layout.fillWidth: true
        spacing: Theme.spacingMedium
    }
}
