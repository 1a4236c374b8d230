import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// Which folder the result is of, when it was scanned, how long it took and with which options,
// and Rescan.
Card {
    id: header
    Accessible.name: [result.rootName,
                      result.isImported ? result.importSource.label
                                        : "scanned in " + result.formattedDuration]
                     .concat(result.scanOptions.labels).join(", ")

    required property analysisResult result

    implicitHeight: content.implicitHeight + 2 * Theme.cardPadding

    RowLayout {
        id: content

        anchors.fill: parent
        anchors.margins: Theme.cardPadding
        spacing: Theme.spacingLarge

        ColumnLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingSmall

            RowLayout {
                spacing: 10

                Icon {
                    symbol: "folder.fill"
                    size: Theme.title.pixelSize + 4
                    color: Theme.blue
                }

                Text {
                    Layout.fillWidth: true
                    text: header.result.rootName
                    font: Theme.weighted(Theme.title, Font.Bold)
                    color: Theme.primary
                    elide: Text.ElideMiddle
                }
            }

            Flow {
                id: facts

                Layout.fillWidth: true
                spacing: Theme.spacingLarge

                DetailLabel {
                    font: Theme.subheadline
                    symbol: "location"
                    text: header.result.rootPath
                    maximumWidth: facts.width
                }

                DetailLabel {
                    font: Theme.subheadline
                    symbol: "clock"
                    text: Format.absoluteDate(header.result.knownScanDate)
                }

                DetailLabel {
                    visible: !header.result.isImported
                    font: Theme.subheadline
                    text: "Scanned in " + header.result.formattedDuration
                }

                DetailLabel {
                    objectName: "importedLabel"
                    visible: header.result.isImported
                    font: Theme.subheadline
                    symbol: "square.and.arrow.down"
                    text: header.result.importSource.label
                    maximumWidth: facts.width
                }

                // How this result counted, when not as by default: its figures read differently.
                DetailLabel {
                    objectName: "scanOptionsLabel"
                    visible: header.result.scanOptions.labels.length > 0
                    font: Theme.subheadline
                    symbol: "gearshape"
                    text: header.result.scanOptions.labels.join(", ")
                }
            }
        }

        BorderedButton {
            objectName: "rescanButton"
            Layout.alignment: Qt.AlignTop
            text: "Rescan"
            symbol: "arrow.clockwise"
            onClicked: AppState.rescan(header.result)
        }
    }
}
