import QtQuick
import Tessarine.App

// The one drop target for folders to scan and scans to import, for the whole window and the
// landing screen's drop zone alike. Only drags that carry file locations reach it. While a scan
// runs a drag is still shown as over the window, but its drop is refused; of a dropped set only
// the first item counts: a folder starts a scan, a file is imported as a scan made elsewhere (an
// ncdu export, a Tessarine result).
DropArea {
    id: area

    readonly property bool targeted: containsDrag

    // What a drop of these locations does; false when nothing could be taken.
    function take(urls) {
        if (urls.length === 0 || AppState.isScanning)
            return false
        const url = urls[0]
        // Later, not now: the scan replaces the view that may hold this very area.
        if (FolderDrop.isFolder(url))
            Qt.callLater(AppState.startScan, url)
        else if (FolderDrop.isImportable(url))
            Qt.callLater(AppState.importScan, url)
        return true
    }

    keys: ["text/uri-list"]

    onDropped: drop => {
        if (area.take(drop.urls))
            drop.accept(Qt.CopyAction)
    }
}
