import QtQuick
import Tessarine.Design
import Tessarine.Screens
import Tessarine.Charts

// How one folder's size went over its scans.
Rectangle {
    id: section

    required property trendSeries series

    implicitHeight: column.implicitHeight + 2 * Theme.cardPadding
    radius: Theme.radiusCard
    color: Theme.material

    Column {
        id: column
        x: Theme.cardPadding
        y: Theme.cardPadding
        width: parent.width - 2 * Theme.cardPadding
        spacing: Theme.spacingMedium

        Row {
            spacing: Theme.spacingSmall
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "chart.line.uptrend.xyaxis"
                color: Theme.green
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: "Storage Trend"
                font: Theme.headline
                color: Theme.primary
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: section.series.folderName
                font: Theme.caption
                color: Theme.secondary
            }
        }

        TrendChart {
            objectName: "trendChart"
            Accessible.role: Accessible.Chart
            Accessible.name: "Storage Trend of " + section.series.folderName + ", " + sizes.length
                             + " scans" + (sizes.length === 0 ? "" : ", from " + Format.byteCount(sizes[0])
                                           + " to " + Format.byteCount(sizes[sizes.length - 1]))
            width: parent.width
            height: 150
            times: section.series.times
            sizes: section.series.sizeValues
            lineColor: Theme.green
            labelColor: Theme.secondary
            gridColor: Theme.separator
            font: Theme.caption
        }
    }
}
