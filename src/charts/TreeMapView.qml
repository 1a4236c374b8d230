import QtQuick
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Charts

// "Storage Treemap": one cell per category, its area its share of the scanned bytes. Hovering a
// cell shows its figures in the details bar; clicking it moves or clears the shared selection.
ChartCard {
    id: card
    Accessible.name: "Storage Treemap"

    required property analysisResult result
    required property CategorySelection selection
    // The row of the hovered cell, or -1.
    readonly property int hoveredIndex: cells.hoveredIndex
    readonly property Item hoveredLabel: labels.itemAt(hoveredIndex)

    ChartHeader {
        title: "Storage Treemap"
        symbol: "square.grid.2x2.fill"
        symbolColor: Theme.purple

        Text {
            text: "Hover for details"
            font: Theme.caption
            color: Theme.tertiary
        }
    }

    Item {
        id: area

        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.minimumHeight: 300

        CategoryTreemapModel {
            id: treemap

            result: card.result
            areaWidth: area.width
            areaHeight: area.height
            selectedCategory: card.selection.category
        }

        TreemapCells {
            id: cells

            objectName: "categoryTreemapCells"
            Accessible.name: "Categories"
            anchors.fill: parent
            cornerRadius: Theme.radiusMedium
            cells: treemap.cells
            hoverScale: 1.02
            hoverDuration: 150
            onClicked: index => card.selection.toggle(treemap.categoryAt(index))
        }

        Repeater {
            id: labels

            model: treemap

            // Grows and shrinks with its cell.
            TreeMapCellLabel {
                hovered: index === cells.hoveredIndex
                hoverScale: cells.hoverScale
                hoverDuration: cells.hoverDuration
            }
        }
    }

    // The bar's room is kept while nothing is hovered: if the treemap grew and shrank with it,
    // every hover would lay the cells out again and lose the hovered cell.
    Item {
        Layout.fillWidth: true
        implicitHeight: details.implicitHeight + 16

        Rectangle {
            objectName: "treemapDetailsBar"
            visible: card.hoveredLabel !== null
            anchors.fill: parent
            radius: Theme.radiusMedium
            color: Theme.withOpacity(Theme.secondary, 0.1)

            Row {
                id: details

                readonly property Item cell: card.hoveredLabel

                anchors.verticalCenter: parent.verticalCenter
                x: 12
                spacing: Theme.spacingLarge

                Row {
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: Theme.spacingSmall

                    Icon {
                        anchors.verticalCenter: parent.verticalCenter
                        symbol: details.cell ? details.cell.symbol : ""
                        size: Theme.caption.pixelSize + 3
                        color: Theme.named(details.cell ? details.cell.colorName : "")
                    }

                    Text {
                        text: details.cell ? details.cell.name : ""
                        font: Theme.weighted(Theme.caption, Font.Medium)
                        color: Theme.primary
                    }
                }

                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 1
                    height: 16
                    color: Theme.separator
                }

                Text {
                    text: details.cell ? Format.byteCount(details.cell.totalSize) : ""
                    font: Theme.tabularDigits(Theme.caption)
                    color: Theme.primary
                }

                Text { text: "•"; font: Theme.caption; color: Theme.tertiary }

                Text {
                    text: details.cell ? Format.count(details.cell.fileCount) + " files" : ""
                    font: Theme.caption
                    color: Theme.primary
                }

                Text { text: "•"; font: Theme.caption; color: Theme.tertiary }

                Text {
                    text: details.cell ? details.cell.share : ""
                    font: Theme.caption
                    color: Theme.secondary
                }
            }
        }
    }
}
