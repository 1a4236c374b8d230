import QtQuick
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Charts

// "Largest Folders": a bar for each of the first folders of the tree's walk (its largest
// branches, parents before children), on a byte-count axis, with how much of the scanned total
// they hold. The bars grow in when the chart appears.
Card {
    id: chart
    Accessible.name: "Largest Folders"

    required property folderTree tree
    // The scan's total, which the summary line's share is of.
    required property real totalSize
    property real growth: 0

    readonly property real labelWidth: Math.min(160, width * 0.35)
    readonly property real axisEnd: bars.axisTicks.length > 0
                                    ? bars.axisTicks[bars.axisTicks.length - 1] : 1

    implicitHeight: content.implicitHeight + 2 * Theme.spacingLarge

    NumberAnimation on growth {
        from: 0
        to: 1
        duration: 800
        easing.type: Easing.OutCubic
    }

    FolderBarChartModel {
        id: bars

        tree: chart.tree
    }

    ColumnLayout {
        id: content

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.spacingLarge }
        spacing: Theme.spacingLarge

        RowLayout {
            Layout.fillWidth: true

            SectionHeader {
                title: "Largest Folders"
                symbol: "folder.fill"
                symbolColor: Theme.blue
            }

            Item { Layout.fillWidth: true }

            Text {
                text: Format.count(bars.folderCount) + " folders"
                font: Theme.caption
                color: Theme.secondary
            }
        }

        Column {
            Layout.fillWidth: true
            Layout.topMargin: 40
            Layout.bottomMargin: 40
            visible: bars.count === 0
            spacing: Theme.spacingMedium

            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: "folder.badge.questionmark"
                size: Theme.largeTitle.pixelSize + 6
                color: Theme.tertiary
            }

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "No folder data available"
                font: Theme.subheadline
                color: Theme.secondary
            }
        }

        Item {
            id: plot

            readonly property real plotX: chart.labelWidth + Theme.spacingSmall
            // Room on the right for the last axis label and the longest annotation.
            readonly property real plotWidth: Math.max(width - plotX - 56, 1)
            readonly property real barsHeight: bars.count * 28

            Layout.fillWidth: true
            implicitHeight: barsHeight + 40
            visible: bars.count > 0

            Rectangle {
                x: plot.plotX
                width: plot.plotWidth
                height: plot.barsHeight
                radius: Theme.radiusMedium
                color: Theme.withOpacity(Theme.secondary, 0.05)
            }

            // The dashed grid lines of the axis ticks.
            Canvas {
                id: grid

                x: plot.plotX
                width: plot.plotWidth
                height: plot.barsHeight
                onWidthChanged: requestPaint()
                onHeightChanged: requestPaint()
                onPaint: {
                    const context = getContext("2d")
                    context.clearRect(0, 0, width, height)
                    context.strokeStyle = Theme.withOpacity(Theme.secondary, 0.4)
                    context.lineWidth = 0.5
                    context.setLineDash([4, 4])
                    for (const tick of bars.axisTicks) {
                        const x = Math.round(tick / chart.axisEnd * width) + 0.5
                        context.beginPath()
                        context.moveTo(x, 0)
                        context.lineTo(x, height)
                        context.stroke()
                    }
                }

                Connections {
                    target: bars
                    function onBarsChanged() { grid.requestPaint() }
                }
            }

            Repeater {
                model: bars

                Item {
                    required property int index
                    required property string name
                    required property real totalSize
                    required property string colorName

                    y: index * 28
                    width: plot.width
                    height: 28
                    Accessible.role: Accessible.ListItem
                    Accessible.name: name + ", " + Format.byteCount(totalSize)

                    Row {
                        anchors.verticalCenter: parent.verticalCenter
                        width: chart.labelWidth
                        spacing: 4

                        Icon {
                            anchors.verticalCenter: parent.verticalCenter
                            symbol: "folder.fill"
                            size: Theme.extraSmall.pixelSize + 2
                            color: Theme.secondary
                        }

                        Text {
                            anchors.verticalCenter: parent.verticalCenter
                            width: parent.width - Theme.extraSmall.pixelSize - 6
                            text: name
                            font: Theme.caption
                            color: Theme.primary
                            elide: Text.ElideMiddle
                        }
                    }

                    Rectangle {
                        id: bar

                        x: plot.plotX
                        anchors.verticalCenter: parent.verticalCenter
                        height: 18
                        width: plot.plotWidth * totalSize / chart.axisEnd * chart.growth
                        radius: 4
                        color: Theme.withOpacity(Theme.named(colorName), 0.8)
                    }

                    Text {
                        x: bar.x + bar.width + 8
                        anchors.verticalCenter: parent.verticalCenter
                        text: Format.byteCount(totalSize)
                        font: Theme.caption
                        color: Theme.secondary
                    }
                }
            }

            Repeater {
                model: bars.axisTicks

                Text {
                    required property real modelData

                    x: plot.plotX + modelData / chart.axisEnd * plot.plotWidth - width / 2
                    y: plot.barsHeight + 6
                    text: Format.byteCount(modelData)
                    font: Theme.extraSmall
                    color: Theme.secondary
                }
            }
        }

        Row {
            visible: bars.count > 0
            spacing: Theme.spacingLarge

            CaptionLabel {
                symbol: "folder"
                text: Format.count(bars.count) + " of " + Format.count(bars.folderCount)
                      + " folders shown"
            }

            Text {
                text: Format.byteCount(bars.shownSize) + " (" + Format.share(bars.shownSize, chart.totalSize)
                      + " of total)"
                font: Theme.caption
                color: Theme.secondary
            }
        }
    }
}
