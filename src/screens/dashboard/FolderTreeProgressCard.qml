import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.Charts
import Tessarine.Design

// The folder tree build under way: which of its two steps runs, how far it got, how long it took
// and how long it may still take, the folder at hand, and Cancel.
Card {
    id: card
    objectName: "folderTreeProgressCard"
    Accessible.name: "Building Folder Treemap"

    // The controller's FolderTreeService.
    required property QtObject service
    readonly property string phase: service.phaseName
    readonly property real fraction: service.totalItems > 0
                                     ? Math.min(service.processedItems / service.totalItems, 1) : 0
    // Advanced by the clock below, so elapsed and remaining time move between progress records.
    property date now: new Date()

    signal cancelRequested()

    implicitHeight: content.implicitHeight + 2 * Theme.cardPadding

    Timer {
        interval: 100
        running: true
        repeat: true
        onTriggered: card.now = new Date()
    }

    component BuildStep: Row {
        id: step

        property string symbol
        property string title
        property bool active
        property bool complete
        readonly property color tint: active ? Theme.orange : (complete ? Theme.green : Theme.secondary)

        spacing: 4
        opacity: active || complete ? 1 : 0.5

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            symbol: step.complete ? "checkmark.circle.fill" : step.symbol
            size: Theme.caption.pixelSize + 2
            color: step.tint
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: step.title
            font: Theme.weighted(Theme.caption, step.active ? Font.DemiBold : Font.Normal)
            color: step.tint
        }
    }

    ColumnLayout {
        id: content

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.cardPadding }
        spacing: Theme.spacingXLarge

        RowLayout {
            Layout.fillWidth: true

            SectionHeader {
                title: "Building Folder Treemap"
                symbol: "folder.fill"
                symbolColor: Theme.orange
            }

            Item { Layout.fillWidth: true }

            BorderedButton {
                text: "Cancel"
                font: Theme.subheadline
                padding: 4
                onClicked: card.cancelRequested()
            }
        }

        BusyIndicator {
            Layout.alignment: Qt.AlignHCenter
            Layout.margins: Theme.spacingLarge
            visible: !card.service.hasProgress
            running: visible
        }

        ColumnLayout {
            Layout.fillWidth: true
            visible: card.service.hasProgress
            spacing: Theme.spacingLarge

            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.spacingMedium

                BuildStep {
                    symbol: "doc.text.magnifyingglass"
                    title: "Scan"
                    active: card.phase === "enumerating"
                    complete: card.phase === "building" || card.phase === "complete"
                }

                Icon {
                    symbol: "chevron.right"
                    size: Theme.extraSmall.pixelSize + 2
                    color: Theme.tertiary
                }

                BuildStep {
                    symbol: "square.grid.2x2"
                    title: "Build"
                    active: card.phase === "building"
                    complete: card.phase === "complete"
                }

                Item { Layout.fillWidth: true }

                Text {
                    text: card.service.statusText
                    font: Theme.tabularDigits(Theme.subheadline)
                    color: Theme.secondary
                }
            }

            Rectangle {
                id: track

                Layout.fillWidth: true
                visible: card.phase === "building"
                implicitHeight: 8
                radius: 4
                color: Theme.withOpacity(Theme.secondary, 0.2)

                Rectangle {
                    height: parent.height
                    width: track.width * card.fraction
                    radius: 4
                    gradient: Gradient {
                        orientation: Gradient.Horizontal
                        GradientStop { position: 0; color: Theme.orange }
                        GradientStop { position: 1; color: Theme.yellow }
                    }

                    Behavior on width {
                        NumberAnimation { duration: Theme.standardDuration; easing.type: Theme.standardEasing }
                    }
                }
            }

            BusyIndicator {
                objectName: "folderTreeSpinner"
                Layout.alignment: Qt.AlignHCenter
                Layout.preferredWidth: 20
                Layout.preferredHeight: 20
                // The style's own 6-point padding would leave its dots 8 points, too few to draw
                // any: the small spinner was an empty square.
                padding: 0
                visible: card.phase !== "building"
                running: visible
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.spacingSection

                CaptionLabel {
                    visible: card.service.totalItems > 0 && card.phase !== "enumerating"
                    symbol: "percent"
                    text: Math.floor(card.fraction * 100) + "%"
                    color: Theme.orange
                }

                CaptionLabel {
                    symbol: "clock"
                    text: Math.max((card.now - card.service.startTime) / 1000, 0).toFixed(1)
                          + "s elapsed"
                }

                CaptionLabel {
                    readonly property var remaining: {
                        card.now // re-estimated as the clock runs
                        return card.service.estimatedTimeRemaining()
                    }

                    visible: remaining !== undefined && remaining > 0
                    symbol: "hourglass"
                    text: "~" + Number(remaining).toFixed(0) + "s remaining"
                    color: Theme.tertiary
                }

                RowLayout {
                    Layout.maximumWidth: 250
                    spacing: 4

                    Icon {
                        symbol: card.phase === "building" ? "folder" : "doc"
                        size: Theme.caption.pixelSize + 2
                        color: Theme.tertiary
                    }

                    Text {
                        Layout.fillWidth: true
                        text: card.service.currentFolder
                        font: Theme.caption
                        color: Theme.tertiary
                        elide: Text.ElideMiddle
                    }
                }

                Item { Layout.fillWidth: true }
            }
        }
    }
}
