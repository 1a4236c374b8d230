import QtQuick
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Screens

// The result's four headline figures side by side.
RowLayout {
    id: view

    required property analysisResult result

    spacing: 16

    Repeater {
        model: SummaryFiguresModel {
            totalSize: view.result.totalSize
            fileCount: view.result.fileCount
            folderCount: view.result.folderCount
            maxDepth: view.result.maxDepth
        }

        SummaryCard {
            required property string detail
            required property string color

            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            subtitle: detail
            colorName: color
        }
    }
}
