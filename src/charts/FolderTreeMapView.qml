import QtQuick
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Charts

// "Folder Treemap": the shown folder's sub-folders as nested rectangles three levels deep, each
// sized by its bytes, with a "Files" rectangle for the bytes lying directly in a folder. A double
// click drills into a folder with sub-folders; Back, Root and the breadcrumbs lead out again.
// All cells are painted by one item, which also finds the cell under the pointer.
Card {
    id: view

    required property folderTree tree
    readonly property alias treemap: treemapModel

    implicitHeight: content.implicitHeight + 2 * Theme.cardPadding
    Accessible.name: "Folder Treemap"

    FolderTreemapModel {
        id: treemapModel

        tree: view.tree
        areaSize: Qt.size(area.width, area.height)
        hoveredIndex: cells.hoveredIndex
        onNavigated: navigationAnimation.restart()
    }

    ColumnLayout {
        id: content

        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.cardPadding }
        spacing: Theme.spacingMedium

        RowLayout {
            Layout.fillWidth: true
            Layout.preferredHeight: 28
            spacing: Theme.spacingSmall

            SectionHeader {
                title: "Folder Treemap"
                symbol: "square.grid.2x2.fill"
                symbolColor: Theme.orange
            }

            Item { Layout.fillWidth: true }

            BorderedButton {
                visible: treemapModel.pathNames.length > 0
                text: "Back"
                symbol: "chevron.left"
                font: Theme.subheadline
                padding: 4
                spacing: 4
                onClicked: treemapModel.back()
            }

            BorderedButton {
                visible: treemapModel.pathNames.length > 0
                text: "Root"
                font: Theme.subheadline
                padding: 4
                onClicked: treemapModel.goToRoot()
            }
        }

        BreadcrumbNavigationView {
            Layout.fillWidth: true
            visible: treemapModel.pathNames.length > 0
            rootName: treemapModel.rootName
            path: treemapModel.pathNames
            onSelectRoot: treemapModel.goToRoot()
            onSelectIndex: index => treemapModel.goTo(index)
        }

        Item {
            id: area

            Layout.fillWidth: true
            Layout.preferredHeight: 400

            TreemapCells {
                id: cells

                objectName: "treemapCells"
                Accessible.name: "Folders in " + (treemapModel.pathNames.length > 0
                                                  ? treemapModel.pathNames[treemapModel.pathNames.length - 1]
                                                  : treemapModel.rootName)

                anchors.fill: parent
                cornerRadius: Theme.radiusMedium
                cells: treemapModel.cells
                hoverScale: 1.01
                hoverDuration: 100
                onDoubleClicked: index => treemapModel.drillDown(index)

                ParallelAnimation {
                    id: navigationAnimation

                    NumberAnimation {
                        target: cells
                        property: "opacity"
                        from: 0.3
                        to: 1
                        duration: Theme.standardDuration
                        easing.type: Theme.standardEasing
                    }

                    NumberAnimation {
                        target: cells
                        property: "scale"
                        from: 0.97
                        to: 1
                        duration: Theme.standardDuration
                        easing.type: Theme.standardEasing
                    }
                }
            }

            // The frame lies over the cells, which fill the area edge to edge.
            Rectangle {
                anchors.fill: parent
                radius: Theme.radiusMedium
                color: "transparent"
                border.width: 1
                border.color: Theme.withOpacity(Theme.secondary, 0.2)
            }
        }

        FolderDetailsBar {
            Layout.fillWidth: true
            details: treemapModel.details
        }
    }
}
