import QtQuick
import Tessarine.App
import Tessarine.Screens

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
        LandingView {}
    }

    Component {
        id: scanning
        ScanningView {}
    }

    Component {
        id: dashboard
        DashboardView {}
    }

    Component {
        id: history
        HistoryListView {}
    }
}
