import QtQuick
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Charts

// "Depth Distribution": how many files lie at each folder depth, as purple bars that grow when
// the card appears. The pointer picks a level by equal slices of the chart's width, so it always
// picks something between the bars too; the strip below then shows that level, otherwise a
// summary of all of them.
ChartCard {
    id: card
    Accessible.name: "Depth Distribution, deepest level " + result.maxDepth

    required property analysisResult result
    property bool isAnimated: false
    // The row picked by the pointer, or -1.
    property int selectedRow: -1
    readonly property Item selectedBar: bars.itemAt(selectedRow)

    Component.onCompleted: isAnimated = true

    DepthListModel {
        id: levels

        result: card.result
    }

    ChartHeader {
        title: "Depth Distribution"
        symbol: "arrow.down.right.circle.fill"
        symbolColor: Theme.purple

        Text {
            text: "Max: Level " + card.result.maxDepth
            font: Theme.caption
            color: Theme.secondary
        }
    }

    Item {
        id: chart

        readonly property real axisWidth: 44
        readonly property real axisHeight: 20
        readonly property list<real> ticks: levels.axisTicks
        readonly property real axisEnd: ticks.length > 0 ? ticks[ticks.length - 1] : 1

        Layout.fillWidth: true
        implicitHeight: 200

        // The keyboard picks levels as the pointer does: Tab reaches the chart, Left and Right
        // step through the levels and the strip below follows. Only Tab focuses it (the hover
        // area takes no clicks), so its ring never shows for a mouse user.
        activeFocusOnTab: true
        Accessible.role: Accessible.List
        Accessible.name: "Depth levels"
        Keys.onLeftPressed: card.selectedRow = Math.max(card.selectedRow - 1, 0)
        Keys.onRightPressed: card.selectedRow = Math.min(card.selectedRow + 1, levels.count - 1)
        onActiveFocusChanged: card.selectedRow = activeFocus ? Math.max(card.selectedRow, 0) : -1

        Rectangle {
            id: plot

            x: chart.axisWidth
            width: chart.width - chart.axisWidth
            height: chart.height - chart.axisHeight
            radius: Theme.radiusMedium
            color: Theme.withOpacity(Theme.secondary, 0.05)

            FocusRing {
                shown: chart.activeFocus
                controlRadius: parent.radius
            }

            DashedGrid {
                anchors.fill: parent
                vertical: false
                positions: chart.ticks.map(tick => plot.height - tick / chart.axisEnd * plot.height)
            }
        }

        Repeater {
            model: chart.ticks

            Text {
                required property real modelData

                x: chart.axisWidth - width - 6
                y: plot.height - modelData / chart.axisEnd * plot.height - height / 2
                text: Format.count(modelData)
                font: Theme.extraSmall
                color: Theme.secondary
            }
        }

        Repeater {
            id: bars

            model: levels

            Item {
                id: slot

                required property int index
                required property double depth
                required property string label
                required property double fileCount
                required property double folderCount
                required property double totalSize

                readonly property real slotWidth: plot.width / Math.max(levels.count, 1)

                x: plot.x + index * slotWidth
                Accessible.role: Accessible.ListItem
                Accessible.name: "Level " + label + ", " + Format.count(fileCount) + " files, "
                                 + Format.count(folderCount) + " folders, " + Format.byteCount(totalSize)
                width: slotWidth
                height: chart.height

                Rectangle {
                    objectName: "depthBar"
                    anchors.horizontalCenter: parent.horizontalCenter
                    anchors.bottom: parent.bottom
                    anchors.bottomMargin: chart.axisHeight
                    width: Math.max(slot.slotWidth * 0.7, 1)
                    height: card.isAnimated ? slot.fileCount / chart.axisEnd * plot.height : 0
                    radius: Math.min(4, width / 2)
                    opacity: card.selectedRow < 0 || card.selectedRow === slot.index ? 1 : 0.4
                    gradient: Gradient {
                        GradientStop { position: 0; color: Theme.purple }
                        GradientStop { position: 1; color: Theme.withOpacity(Theme.purple, 0.6) }
                    }

                    Behavior on height { NumberAnimation { duration: 600; easing.type: Easing.OutCubic } }
                }

                Text {
                    // Every level is labelled while they fit; beyond that every other one.
                    visible: slot.slotWidth >= implicitWidth + 4 || slot.index % 2 === 0
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: plot.height + 4
                    text: slot.label
                    font: Theme.extraSmall
                    color: Theme.secondary
                }
            }
        }

        MouseArea {
            objectName: "depthHoverArea"
            x: plot.x
            width: plot.width
            height: plot.height
            hoverEnabled: true
            acceptedButtons: Qt.NoButton
            onPositionChanged: mouse => {
                const row = levels.rowAt(mouse.x, width)
                if (row >= 0)
                    card.selectedRow = row
            }
            onExited: card.selectedRow = -1
        }
    }

    DepthDetailsStrip {
        visible: card.selectedBar !== null
        Layout.fillWidth: true
        level: card.selectedBar
    }

    Row {
        objectName: "depthSummary"
        visible: card.selectedBar === null
        Layout.preferredHeight: 36
        spacing: Theme.spacingLarge

        ChartFact { symbol: "arrow.down.right"; text: levels.count + " levels" }
        ChartFact { symbol: "chart.line.uptrend.xyaxis"; text: "Peak at level " + levels.peakDepth }
        ChartFact { symbol: "doc.on.doc"; text: Format.count(levels.totalFiles) + " total files" }
    }

    Item { Layout.fillHeight: true }
}
