import QtQuick
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Screens

// The patterns found in the result, as cards in as many columns as fit; absent when none.
ColumnLayout {
    id: section

    required property analysisResult result

    visible: insights.count > 0
    spacing: Theme.spacingMedium

    Row {
        spacing: 6

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            symbol: "lightbulb.fill"
            color: Theme.yellow
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: "Insights"
            font: Theme.headline
            color: Theme.primary
        }
    }

    GridLayout {
        Layout.fillWidth: true
        // Adaptive columns of at least 300 points, 12 apart.
        columns: Math.max(1, Math.floor((section.width + 12) / (300 + 12)))
        columnSpacing: 12
        rowSpacing: 12

        Repeater {
            model: InsightListModel {
                id: insights

                result: section.result
            }

            InsightCard {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.fillHeight: true
            }
        }
    }
}
