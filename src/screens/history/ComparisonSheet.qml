import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// Two scans side by side, the earlier as "Before": their totals with the change of each, then
// the folders, the categories that grew or shrank and the largest files that came or went.
Dialog {
    id: sheet

    property alias first: comparison.first
    property alias second: comparison.second

    objectName: "comparisonSheet"
    modal: true
    anchors.centerIn: Overlay.overlay
    width: Math.min(680, parent ? parent.width - 40 : 680)
    height: Math.min(implicitHeight, parent ? parent.height - 40 : implicitHeight)
    padding: Theme.spacingSection
    header: null
    closePolicy: Popup.CloseOnEscape
    focus: true

    ComparisonModel {
        id: comparison
        historyFolder: AppState.historyFolder
    }

    contentItem: Flickable {
        Accessible.role: Accessible.Dialog
        Accessible.name: "Comparison"
        implicitHeight: content.implicitHeight
        contentHeight: content.implicitHeight
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        // "Done" is the default action: Return dismisses the sheet wherever the focus is.
        Shortcut {
            sequences: ["Return", "Enter"]
            enabled: sheet.opened
            onActivated: sheet.close()
        }
        ScrollBar.vertical: ScrollBar {}

        ColumnLayout {
            id: content
            width: parent.width
            spacing: Theme.spacingLarge

            RowLayout {
                Layout.fillWidth: true
                Text {
                    Layout.fillWidth: true
                    text: "Comparison"
                    font: Theme.weighted(Theme.title2, Font.Bold)
                    color: Theme.primary
                }
                ProminentButton {
                    objectName: "doneButton"
                    text: "Done"
                    onClicked: sheet.close()
                }
            }

            Text {
                objectName: "optionsNote"
                Layout.fillWidth: true
                visible: text !== ""
                text: comparison.optionsNote
                font: Theme.callout
                color: Theme.secondary
                wrapMode: Text.Wrap
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.spacingLarge

                ComparedScanColumn {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    label: "Before"
                    result: comparison.before
                    rows: comparison.totals
                    showsAfter: false
                }
                ChangeColumn {
                    Layout.preferredWidth: 120
                    rows: comparison.totals
                }
                ComparedScanColumn {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    label: "After"
                    result: comparison.after
                    rows: comparison.totals
                    showsAfter: true
                }
            }

            FolderChangeList {
                Layout.fillWidth: true
                rows: comparison.folders
                note: comparison.folderNote
            }

            ChangeList {
                Layout.fillWidth: true
                title: "Categories"
                rows: comparison.categories
            }

            ChangeList {
                Layout.fillWidth: true
                title: "Files Added or Removed"
                rows: comparison.files
            }
        }
    }

    background: Rectangle {
        radius: Theme.radiusCard
        color: Theme.controlBackground
        border.width: 1
        border.color: Theme.separator
    }
}
