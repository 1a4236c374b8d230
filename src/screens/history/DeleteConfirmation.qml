import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Screens

// Asks before the selected scans are deleted for good.
Dialog {
    id: dialog

    property int selectedCount: 0

    objectName: "deleteConfirmation"
    title: "Delete Selected Scans"
    modal: true
    anchors.centerIn: Overlay.overlay
    width: 320
    padding: Theme.spacingXLarge
    header: null
    closePolicy: Popup.CloseOnEscape
    focus: true

    contentItem: ColumnLayout {
        // Return confirms, as the highlighted button of the platform's confirmation does; a
        // button reached with Tab takes Return itself, so Tab to "Cancel" and Return cancels.
        focus: true
        spacing: Theme.spacingSmall
        Accessible.role: Accessible.Dialog
        Accessible.name: dialog.title
        Accessible.description: deleteMessage.text

        Keys.onReturnPressed: dialog.accept()
        Keys.onEnterPressed: dialog.accept()

        Text {
            Layout.fillWidth: true
            text: dialog.title
            font: Theme.weighted(Theme.body, Font.Bold)
            color: Theme.primary
            horizontalAlignment: Text.AlignHCenter
        }

        Text {
            id: deleteMessage
            objectName: "deleteMessage"
            Layout.fillWidth: true
            text: "This will permanently delete " + dialog.selectedCount + " scan(s) from history."
            font: Theme.callout
            color: Theme.primary
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }

        RowLayout {
            Layout.topMargin: Theme.spacingMedium
            spacing: Theme.spacingSmall
            BorderedButton {
                Layout.fillWidth: true
                text: "Cancel"
                onClicked: dialog.reject()
            }
            BorderedButton {
                objectName: "confirmDelete"
                Layout.fillWidth: true
                text: "Delete"
                destructive: true
                onClicked: dialog.accept()
            }
        }
    }

    background: Rectangle {
        radius: Theme.radiusCard
        color: Theme.material
        border.width: 1
        border.color: Theme.separator
    }
}
