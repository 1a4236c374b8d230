import QtQuick
import Tessarine.Design
import Tessarine.Charts

// The bars of the category chart over their plot: 36 points per category plus the axis, names
// with their symbols on the left, byte counts along the bottom at readable values with dashed
// grid lines, and each bar's size at its end once it has grown.
Item {
    id: chart

    required property CategoryListModel model
    required property CategorySelection selection
    property bool isAnimated: false

    readonly property real labelWidth: 112
    readonly property real axisHeight: 40
    readonly property real pitch: 36
    readonly property list<real> ticks: model.axisTicks
    readonly property real axisEnd: ticks.length > 0 ? ticks[ticks.length - 1] : 1

    implicitHeight: model.count * pitch + axisHeight

    Rectangle {
        id: plot

        x: chart.labelWidth
        width: chart.width - chart.labelWidth - 56
        height: chart.model.count * chart.pitch + 8
        radius: Theme.radiusMedium
        color: Theme.withOpacity(Theme.secondary, 0.05)

        DashedGrid {
            anchors.fill: parent
            positions: chart.ticks.map(tick => tick / chart.axisEnd * plot.width)
        }
    }

    Repeater {
        model: chart.ticks

        Text {
            required property real modelData

            x: plot.x + modelData / chart.axisEnd * plot.width - width / 2
            y: plot.height + 6
            text: Format.byteCount(modelData)
            font: Theme.extraSmall
            color: Theme.secondary
        }
    }

    Repeater {
        model: chart.model

        Item {
            id: row

            required property int index
            required property int category
            required property string name
            required property string symbol
            required property string colorName
            required property double totalSize

            readonly property bool dimmed: chart.selection.category >= 0
                                           && chart.selection.category !== category

            y: 4 + index * chart.pitch
            width: chart.width
            height: chart.pitch
            Accessible.role: Accessible.ListItem
            Accessible.name: name + ", " + Format.byteCount(totalSize)

            Row {
                anchors.verticalCenter: parent.verticalCenter
                width: chart.labelWidth - 8
                spacing: 4

                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    symbol: row.symbol
                    size: Theme.extraSmall.pixelSize + 3
                    color: Theme.named(row.colorName)
                }

                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    width: parent.width - 16
                    text: row.name
                    font: Theme.caption
                    color: Theme.primary
                    elide: Text.ElideRight
                }
            }

            Rectangle {
                id: bar

                objectName: "categoryBar"
                x: plot.x
                anchors.verticalCenter: parent.verticalCenter
                height: chart.pitch - 12
                width: chart.isAnimated ? row.totalSize / chart.axisEnd * plot.width : 0
                radius: 4
                color: Theme.named(row.colorName)
                opacity: row.dimmed ? 0.3 : 1

                Behavior on width { NumberAnimation { duration: 800; easing.type: Easing.OutCubic } }
                Behavior on opacity { NumberAnimation { duration: Theme.quickDuration; easing.type: Theme.standardEasing } }
            }

            Text {
                visible: chart.isAnimated
                anchors.verticalCenter: parent.verticalCenter
                x: bar.x + bar.width + 8
                text: Format.byteCount(row.totalSize)
                font: Theme.caption
                color: Theme.secondary
            }
        }
    }
}
