import QtQuick
import Tessarine.App

// A drop target for folders to scan. Drags carrying file locations are taken, except while a scan
// runs; of a dropped set only the first item counts, and it starts a scan only when it is a
// folder: a dropped file is accepted and then quietly ignored.
DropArea {
    readonly property bool targeted: containsDrag

    onEntered: drag => drag.accepted = drag.hasUrls && !AppState.isScanning

    onDropped: drop => {
        if (!drop.hasUrls || AppState.isScanning)
            return
        drop.accept(Qt.CopyAction)
        const url = drop.urls[0]
        // Later, not now: the scan replaces the view that may hold this very area.
        if (FolderDrop.isFolder(url))
            Qt.callLater(AppState.startScan, url)
    }
}
