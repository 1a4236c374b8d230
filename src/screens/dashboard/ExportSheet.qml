import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Dialogs
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// "Export Analysis": the format, then a save dialog for that type only. A failed write raises the
// export alert and leaves the sheet open to try another place.
Popup {
    id: sheet

    required property analysisResult result
    property int exportFormat: ResultExport.Json
    readonly property alias saveDialog: saveDialog

    function exportTo(destination) {
        const failure = ResultExport.write(result, exportFormat, destination)
        if (failure === "")
            close()
        else
            AppState.error = AppError.exportFailed(failure)
    }

    modal: true
    focus: true
    x: (parent.width - width) / 2
    y: (parent.height - height) / 3
    padding: Theme.spacingXLarge
    closePolicy: Popup.CloseOnEscape
    onAboutToShow: exportFormat = ResultExport.Json

    background: Rectangle {
        radius: Theme.radiusCard
        color: Theme.controlBackground
        border.width: 1
        border.color: Theme.separator
    }

    contentItem: ColumnLayout {
        Accessible.role: Accessible.Dialog
        Accessible.name: "Export Analysis"
        focus: true
        spacing: Theme.spacingXLarge

        Keys.onReturnPressed: exportButton.clicked()
        Keys.onEnterPressed: exportButton.clicked()

        Text {
            text: "Export Analysis"
            font: Theme.headline
            color: Theme.primary
        }

        RowLayout {
            spacing: Theme.spacingMedium

            Text {
                text: "Format"
                font: Theme.body
                color: Theme.primary
            }

            Row {
                objectName: "exportFormatPicker"
                Layout.preferredWidth: 200

                Repeater {
                    model: ["JSON", "CSV"]

                    AbstractButton {
                        id: segment

                        required property int index
                        required property string modelData
                        readonly property bool chosen: sheet.exportFormat === index

                        objectName: "exportFormat" + modelData
                        width: 100
                        height: 24
                        text: modelData
                        onClicked: sheet.exportFormat = segment.index
                        Accessible.role: Accessible.RadioButton
                        Accessible.name: modelData
                        Accessible.checkable: true
                        Accessible.checked: chosen

                        background: Rectangle {
                            radius: Theme.radiusSmall
                            color: segment.chosen ? Theme.accent : Theme.withOpacity(Theme.secondary, 0.12)

                            FocusRing {
                                shown: segment.visualFocus
                                controlRadius: parent.radius
                            }
                        }

                        contentItem: Text {
                            text: segment.text
                            font: Theme.weighted(Theme.callout, Font.Medium)
                            color: segment.chosen ? Theme.labelOnAccent : Theme.primary
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                        }
                    }
                }
            }
        }

        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: Theme.spacingSmall

            BorderedButton {
                objectName: "exportCancelButton"
                text: "Cancel"
                onClicked: sheet.close()
            }

            ProminentButton {
                id: exportButton

                objectName: "exportButton"
                text: "Export"
                onClicked: {
                    saveDialog.selectedFile = ResultExport.proposedFile(sheet.result, sheet.exportFormat)
                    saveDialog.open()
                }
            }
        }
    }

    FileDialog {
        id: saveDialog

        fileMode: FileDialog.SaveFile
        title: "Export Analysis"
        nameFilters: sheet.exportFormat === ResultExport.Csv ? ["Comma-separated values (*.csv)"]
                                                             : ["JSON (*.json)"]
        defaultSuffix: sheet.exportFormat === ResultExport.Csv ? "csv" : "json"
        onAccepted: sheet.exportTo(selectedFile)
    }
}
