import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.App
import Tessarine.Charts

// One finished result: its identity with Rescan, the summary cards, the charts and tables of the
// result, and the insights, in one vertical scroll under the toolbar.
Rectangle {
    id: dashboard

    readonly property analysisResult result: AppState.currentResult

    color: Theme.contentBackground

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        DashboardToolbar { Layout.fillWidth: true }

        ScrollView {
            id: scroller

            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: availableWidth

            ColumnLayout {
                x: Theme.spacingSection
                width: scroller.availableWidth - 2 * Theme.spacingSection
                spacing: Theme.spacingSection

                DashboardHeader {
                    Layout.fillWidth: true
                    Layout.topMargin: Theme.spacingSection
                    result: dashboard.result
                }

                SummaryCardsView {
                    Layout.fillWidth: true
                    result: dashboard.result
                }

                // The category charts, the folder analysis, the largest files and the depth and
                // extension charts come between the summary cards and the insights.

                FolderAnalysisSection { Layout.fillWidth: true; result: dashboard.result }

                InsightsSection {
                    Layout.fillWidth: true
                    Layout.bottomMargin: Theme.spacingSection
                    result: dashboard.result
                }
            }
        }
    }
}
