import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.Charts
import Tessarine.Design

// The folder analysis before a tree exists: what the treemap offers, the button that builds it,
// and the reason the last build failed.
Card {
    id: card
    Accessible.name: "Folder Analysis"

    property real folderCount
    property bool hasError
    property string errorText

    signal buildRequested()

    implicitHeight: content.implicitHeight + 2 * Theme.cardPadding

    ColumnLayout {
        id: content

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.cardPadding }
        spacing: Theme.spacingLarge

        SectionHeader {
            title: "Folder Analysis"
            symbol: "folder.fill"
            symbolColor: Theme.orange
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingSection

            ColumnLayout {
                Layout.fillWidth: true
                spacing: Theme.spacingSmall

                Text {
                    Layout.fillWidth: true
                    text: "Explore folder sizes with an interactive treemap"
                    font: Theme.subheadline
                    color: Theme.secondary
                    elide: Text.ElideRight
                }

                Row {
                    spacing: Theme.spacingLarge

                    CaptionLabel {
                        symbol: "folder"
                        text: Format.count(card.folderCount) + " folders to analyze"
                        color: Theme.tertiary
                    }

                    CaptionLabel {
                        symbol: "cursorarrow.click.2"
                        text: "Click folders to drill down"
                        color: Theme.tertiary
                    }
                }
            }

            Button {
                id: buildButton

                topPadding: 10
                bottomPadding: 10
                leftPadding: Theme.spacingLarge
                rightPadding: Theme.spacingLarge
                text: "Build Folder Treemap"
                font: Theme.weighted(Theme.body, Font.DemiBold)
                onClicked: card.buildRequested()
                Accessible.role: Accessible.Button
                Accessible.name: text

                contentItem: ButtonLabel {
                    text: buildButton.text
                    symbol: "square.grid.2x2"
                    font: buildButton.font
                    spacing: 8
                    color: Theme.labelOnAccent
                }

                background: Rectangle {
                    radius: Theme.radiusButton
                    color: buildButton.down ? Qt.darker(Theme.orange, 1.15)
                                            : (buildButton.hovered ? Qt.lighter(Theme.orange, 1.08)
                                                                   : Theme.orange)

                    FocusRing {
                        shown: buildButton.visualFocus
                        controlRadius: parent.radius
                    }
                }

                HoverHandler { cursorShape: Qt.PointingHandCursor }
            }
        }

        CaptionLabel {
            visible: card.hasError
            symbol: "exclamationmark.triangle"
            text: card.errorText !== "" ? card.errorText : "An error occurred"
            color: Theme.red
        }
    }
}
