import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design

// The start screen: drop a folder or pick one, or reopen one of the latest scans.
Item {
    id: landing

    // True while a drag carrying file locations hovers over the screen.
    readonly property bool isTargeted: dropArea.targeted

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.landingTop }
            GradientStop { position: 0.6; color: Theme.landingMiddle }
            GradientStop { position: 1; color: Theme.landingBottom }
        }
    }

    Flickable {
        id: scroller

        anchors.fill: parent
        contentWidth: width
        contentHeight: Math.max(height, content.implicitHeight + 2 * Theme.spacingHuge)
        boundsBehavior: Flickable.StopAtBounds

        ColumnLayout {
            id: content

            width: Math.min(scroller.width - 2 * Theme.spacingHuge, 720)
            x: (scroller.width - width) / 2
            y: Math.max(Theme.spacingHuge, (scroller.height - implicitHeight) / 2)
            spacing: Theme.spacingSection

            LandingHero {
                Layout.alignment: Qt.AlignHCenter
                Layout.bottomMargin: Theme.spacingSmall
            }

            DropZone {
                objectName: "dropZone"
                Layout.alignment: Qt.AlignHCenter
                Layout.preferredWidth: Math.min(480, content.width)
                targeted: landing.isTargeted
                onClicked: AppState.showFolderPicker = true
            }

            OrSeparator { Layout.alignment: Qt.AlignHCenter }

            ProminentButton {
                Layout.alignment: Qt.AlignHCenter
                text: "Select Folder"
                symbol: "folder"
                onClicked: AppState.showFolderPicker = true
            }

            RecentScansSection {
                objectName: "recentScans"
                Layout.fillWidth: true
                Layout.topMargin: Theme.spacingSmall
                visible: AppState.scanHistory.count > 0
            }
        }
    }

    FolderDropArea {
        id: dropArea
        anchors.fill: parent
    }
}
