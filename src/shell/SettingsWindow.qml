import QtQuick
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Design

// The Settings window (Ctrl+, and File > Settings…): how new scans count. Each switch takes effect
// at once and is remembered between launches; results made before keep the options they were made
// with.
Window {
    id: settings

    function showSettings() {
        show()
        raise()
        requestActivate()
    }

    title: "Settings"
    width: 580
    height: content.implicitHeight + 2 * Theme.spacingSection
    minimumWidth: 460
    minimumHeight: height
    maximumHeight: height
    flags: Qt.Dialog
    color: Theme.windowBackground

    Shortcut {
        sequences: ["Ctrl+W", "Escape"]
        onActivated: settings.close()
    }

    ColumnLayout {
        id: content

        anchors.fill: parent
        anchors.margins: Theme.spacingSection
        spacing: Theme.spacingSmall

        Text {
            text: "Scanning"
            font: Theme.weighted(Theme.title2, Font.Bold)
            color: Theme.primary
        }

        Text {
            Layout.fillWidth: true
            Layout.bottomMargin: Theme.spacingSmall
            text: "New scans and folder trees count as chosen here. A rescan counts as its result did."
            font: Theme.callout
            color: Theme.secondary
            wrapMode: Text.Wrap
        }

        SettingsToggle {
            objectName: "includeHiddenSwitch"
            Layout.fillWidth: true
            focus: true
            text: "Include hidden items"
            explanation: "Count files and folders whose names start with a dot, like .cache and .git."
            checked: AppState.scanOptions.includeHidden
            onToggled: AppState.scanOptions.includeHidden = checked
        }

        SettingsToggle {
            objectName: "oneFileSystemSwitch"
            Layout.fillWidth: true
            text: "Stay on this file system"
            explanation: "Leave out other disks and mounts inside the scanned folder, as du -x does."
            checked: AppState.scanOptions.oneFileSystem
            onToggled: AppState.scanOptions.oneFileSystem = checked
        }

        SettingsToggle {
            objectName: "diskUsageSwitch"
            Layout.fillWidth: true
            text: "Count disk usage"
            explanation: "Count the space files take on the disk, as du does, not their size."
            checked: AppState.scanOptions.diskUsage
            onToggled: AppState.scanOptions.diskUsage = checked
        }
    }
}
