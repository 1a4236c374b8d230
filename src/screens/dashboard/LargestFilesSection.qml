import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design
import Tessarine.Screens

// "Largest Files": the result's largest files in a table sorted by its headers and searched by
// name, folder or extension, with several rows selectable to reveal together. Collapsing hides the
// search and the table but keeps what was searched, sorted and selected.
Rectangle {
    id: section

    required property analysisResult result
    property bool isExpanded: true
    readonly property alias rows: rows
    readonly property alias table: table

    implicitHeight: column.implicitHeight + 2 * Theme.cardPadding
    radius: Theme.radiusCard
    color: Theme.controlBackground
    border.width: 1
    border.color: Theme.withOpacity(Theme.separator, 0.8)

    LargestFilesRows {
        id: rows

        result: section.result
    }

    // Reveals or opens one file, or raises the alert when it has gone since the scan.
    function reveal(path) {
        if (!FileActions.reveal(path))
            AppState.error = AppError.invalidPath(path)
    }

    function open(path) {
        if (!FileActions.open(path))
            AppState.error = AppError.invalidPath(path)
    }

    function revealSelected() {
        for (const path of rows.selectedPaths)
            reveal(path)
    }

    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: Theme.cardPadding
        spacing: Theme.spacingMedium

        RowLayout {
            Layout.fillWidth: true

            AbstractButton {
                id: disclosure

                objectName: "largestFilesDisclosure"
                text: "Largest Files"
                // A click leaves the keyboard with the table, as on the reveal button below.
                focusPolicy: Qt.TabFocus
                onClicked: section.isExpanded = !section.isExpanded
                Accessible.role: Accessible.Button
                Accessible.name: (section.isExpanded ? "Collapse" : "Expand") + " Largest Files"

                background: Item {
                    FocusRing {
                        shown: disclosure.visualFocus
                    }
                }

                contentItem: Row {
                    spacing: Theme.spacingSmall

                    Icon {
                        anchors.verticalCenter: parent.verticalCenter
                        symbol: section.isExpanded ? "chevron.down" : "chevron.right"
                        size: Theme.caption.pixelSize + 3
                        color: Theme.secondary
                    }

                    SectionHeader {
                        anchors.verticalCenter: parent.verticalCenter
                        title: "Largest Files"
                        symbol: "doc.text.magnifyingglass"
                        symbolColor: Theme.green
                    }

                    Text {
                        anchors.verticalCenter: parent.verticalCenter
                        text: "(" + rows.fileCount + ")"
                        font: Theme.subheadline
                        color: Theme.secondary
                    }
                }

                HoverHandler { cursorShape: Qt.PointingHandCursor }
            }

            Item { Layout.fillWidth: true }

            BorderedButton {
                objectName: "revealSelectedButton"
                visible: rows.selectedCount > 0
                text: "Reveal in File Manager"
                symbol: "folder"
                font: Theme.caption
                // Reached with Tab, but a click leaves the keyboard with the table, so Ctrl+C
                // still copies what is selected.
                focusPolicy: Qt.TabFocus
                onClicked: section.revealSelected()
            }
        }

        // The search and the table slide open and shut; once shut they take no keys.
        Item {
            id: body

            objectName: "largestFilesBody"
            // How much of the body shows: a fraction, so that only a fold slides, not the first
            // layout.
            property real shown: section.isExpanded ? 1 : 0

            visible: shown > 0
            Layout.fillWidth: true
            Layout.preferredHeight: bodyColumn.implicitHeight * shown
            clip: true

            Behavior on shown {
                NumberAnimation {
                    duration: Theme.quickDuration
                    easing.type: Theme.standardEasing
                }
            }

            ColumnLayout {
                id: bodyColumn

                width: parent.width
                spacing: Theme.spacingMedium

                Rectangle {
                    Layout.fillWidth: true
                    implicitHeight: 30
                    radius: Theme.radiusSmall
                    color: Theme.withOpacity(Theme.secondary, 0.08)
                    // Where typing goes shows, as on the history's search field.
                    border.width: 1
                    border.color: search.activeFocus ? Theme.accent : "transparent"

                    RowLayout {
                        anchors.fill: parent
                        anchors.leftMargin: 8
                        anchors.rightMargin: 8
                        spacing: 6

                        Icon {
                            symbol: "magnifyingglass"
                            size: 14
                            color: Theme.secondary
                        }

                        TextField {
                            id: search

                            objectName: "largestFilesSearch"
                            Layout.fillWidth: true
                            placeholderText: "Search files..."
                            Accessible.role: Accessible.EditableText
                            Accessible.name: placeholderText
                            Accessible.searchEdit: true
                            font: Theme.body
                            background: null
                            text: rows.searchText
                            onTextEdited: rows.searchText = text
                        }

                        PlainButton {
                            objectName: "clearSearchButton"
                            Accessible.name: "Clear search"
                            visible: rows.searchText !== ""
                            symbol: "xmark.circle.fill"
                            tint: Theme.secondary
                            leftPadding: Theme.spacingTiny
                            rightPadding: Theme.spacingTiny
                            onClicked: rows.searchText = ""
                        }
                    }
                }

                LargestFilesTable {
                    id: table

                    Layout.fillWidth: true
                    Layout.preferredHeight: 360
                    rows: rows
                    onRevealRequested: path => section.reveal(path)
                    onOpenRequested: path => section.open(path)
                }
            }
        }
    }
}
