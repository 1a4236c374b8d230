import QtQuick
import Tessarine.App
import Tessarine.Screens

// The screen of the current view. The dashboard needs a result; without one the landing screen
// stands in. Another result gets a new dashboard and another scan a new scanning screen, so that
// selections, scroll positions, rates and logs never carry over from what was shown before.
Loader {
    id: detail

    function reload() {
        active = false
        active = true
    }

    sourceComponent: {
        switch (AppState.currentView) {
        case AppState.Scanning:
            return scanning
        case AppState.Dashboard:
            return AppState.hasCurrentResult ? dashboard : landing
        case AppState.History:
            return history
        default:
            return landing
        }
    }

    Connections {
        target: AppState

        function onCurrentResultChanged() {
            if (AppState.currentView === AppState.Dashboard)
                detail.reload()
        }

        function onScanStarted() {
            if (AppState.currentView === AppState.Scanning)
                detail.reload()
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
        HistoryView {}
    }
}
