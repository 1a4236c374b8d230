import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// Which folder the result is of, when it was scanned and how long it took, and Rescan.
Card {
    id: header
    Accessible.name: result.rootName + ", scanned in " + result.formattedDuration

    required property analysisResult result

    implicitHeight: content.implicitHeight + 2 * Theme.spacingXLarge

    RowLayout {
        id: content

        anchors.fill: parent
        anchors.margins: Theme.spacingXLarge
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
                    font: Theme.callout
                    symbol: "location"
                    text: header.result.rootPath
                    maximumWidth: facts.width
                }

                DetailLabel {
                    font: Theme.callout
                    symbol: "clock"
                    text: Format.absoluteDate(header.result.scanDate)
                }

                DetailLabel {
                    font: Theme.callout
                    text: "Scanned in " + header.result.formattedDuration
                }
            }
        }

        BorderedButton {
            objectName: "rescanButton"
            Layout.alignment: Qt.AlignTop
            text: "Rescan"
            symbol: "arrow.clockwise"
            onClicked: AppState.startScan(FolderUrl.fromPath(header.result.rootPath))
        }
    }
}
