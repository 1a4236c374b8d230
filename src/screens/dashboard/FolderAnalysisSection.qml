import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Charts
import Tessarine.Design

// The dashboard's folder analysis: a card offering to build the folder tree of the result, the
// build's progress, and the finished tree as the largest folders beside the folder treemap. The
// section lives as long as the dashboard shows its result and keeps the tree for that long; a
// result that carries its own tree shows it at once.
Item {
    id: section

    required property analysisResult result
    readonly property FolderTreeController controller: FolderTreeController {}

    objectName: "folderAnalysis"
    implicitHeight: shown.implicitHeight

    Component.onCompleted: {
        if (result.folderTree.hasValue)
            controller.setTree(result.folderTree)
    }

    Loader {
        id: shown

        width: section.width
        sourceComponent: {
            if (section.controller.hasTree)
                return treeView
            return section.controller.state === FolderTreeController.Building ? progressCard
                                                                              : startCard
        }
    }

    Component {
        id: startCard

        FolderTreeStartCard {
            folderCount: section.result.folderCount
            hasError: section.controller.state === FolderTreeController.Failed
            errorText: section.controller.errorText
            onBuildRequested: section.controller.build(section.result.rootPath, section.result.scanOptions)
        }
    }

    Component {
        id: progressCard

        FolderTreeProgressCard {
            service: section.controller.service
            onCancelRequested: section.controller.cancel()
        }
    }

    Component {
        id: treeView

        RowLayout {
            spacing: Theme.spacingSection

            FolderChart {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.minimumWidth: 400
                Layout.preferredWidth: 1
                tree: section.controller.tree
                totalSize: section.result.totalSize
            }

            FolderTreeMapView {
                objectName: "folderTreemap"
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.minimumWidth: 400
                Layout.preferredWidth: 1
                tree: section.controller.tree
            }
        }
    }
}
