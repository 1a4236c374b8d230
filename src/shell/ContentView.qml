import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Dialogs
import Tessarine.App
import Tessarine.Design

// The main window's content: the sidebar beside the screen of the current view, a drop target
// over both, and the folder picker.
Item {
    id: content

    readonly property bool isDropTargeted: dropArea.targeted
    readonly property alias folderPicker: picker

    // Underneath the screens, so that a screen's own drop zone takes the drags over it.
    FolderDropArea {
        id: dropArea
        anchors.fill: parent
    }

    SplitView {
        anchors.fill: parent

        handle: Rectangle {
            implicitWidth: 1
            color: Theme.separator
        }

        SidebarView {
            objectName: "sidebar"
            SplitView.minimumWidth: 200
            SplitView.preferredWidth: 250
            SplitView.maximumWidth: 300
        }

        DetailView {
            SplitView.fillWidth: true
        }
    }

    DropOverlay {
        objectName: "dropOverlay"
        anchors.fill: parent
        shown: content.isDropTargeted
    }

    FolderDialog {
        id: picker
        title: "Choose a folder to analyze"
        onAccepted: AppState.startScan(selectedFolder)
        // The picker hands the request back however it closes.
        onVisibleChanged: if (!visible) AppState.showFolderPicker = false
    }

    // Scans made elsewhere: ncdu's export (ncdu -o) or a result of tessarine-cli scan.
    FileDialog {
        id: importPicker
        objectName: "importPicker"
        title: "Import a scan"
        nameFilters: ["Scans (*.json)", "All files (*)"]
        onAccepted: AppState.importScan(selectedFile)
    }

    function openImportPicker() {
        importPicker.open()
    }

    Connections {
        target: AppState
        function onShowFolderPickerChanged() {
            if (AppState.showFolderPicker) {
                picker.currentFolder = AppState.folderPickerStart()
                picker.open()
            }
        }
    }
}
