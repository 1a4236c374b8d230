import QtQuick
import Tessarine.App

// The screen of the current view. The dashboard needs a result; without one the landing screen
// stands in.
Loader {
    sourceComponent: {
        switch (AppState.currentView) {
        case AppState.Scanning:
            return scanning
        case AppState.Dashboard:
            return AppState.currentResult.valid ? dashboard : landing
        case AppState.History:
            return history
        default:
            return landing
        }
    }

    Component {
        id: landing
        ScreenPlaceholder {
            symbol: "chart.pie.fill"
            title: "Tessarine"
            subtitle: "Analyze your disk space with beautiful visualizations"
            actionText: "Select Folder"
            actionSymbol: "folder"
            onActionTriggered: AppState.showFolderPicker = true
        }
    }

    Component {
        id: scanning
        ScreenPlaceholder {
            symbol: "magnifyingglass"
            title: AppState.scanProgress.valid ? AppState.scanProgress.phaseName : "Starting scan..."
            subtitle: Format.count(AppState.scanProgress.filesScanned) + " files"
            actionText: "Cancel"
            actionSymbol: "xmark"
            onActionTriggered: AppState.cancelScan()
        }
    }

    Component {
        id: dashboard
        ScreenPlaceholder {
            symbol: "folder.fill"
            title: AppState.currentResult.rootName
            subtitle: Format.byteCount(AppState.currentResult.totalSize)
        }
    }

    Component {
        id: history
        HistoryListView {}
    }
}
