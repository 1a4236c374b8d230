import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Screens

// The right panel of the scanning screen: the phase steps, then performance, location and
// statistics (placeholders before the first snapshot), then the activity log.
ColumnLayout {
    id: panel

    required property LiveScanFigures figures
    required property ActivityLogModel activityLog
    required property scanProgress progress
    required property bool hasProgress

    spacing: 0

    // Placed rather than laid out, so that the steps replacing "Initializing..." when the first
    // snapshot arrives take their place at once; where the title and the steps do not fit side by
    // side, the steps go below the title.
    Item {
        id: header

        readonly property bool stacked: title.implicitWidth + steps.implicitWidth + 60 > width

        Layout.fillWidth: true
        implicitHeight: stacked ? 92 : 56

        Text {
            id: title

            x: 20
            y: header.stacked ? 16 : (header.height - height) / 2
            text: "Scan Details"
            font: Theme.headline
            color: Theme.primary
        }

        PhaseStepsIndicator {
            id: steps

            x: header.stacked ? 20 : header.width - 20 - width
            y: header.stacked ? title.y + title.height + 12 : (header.height - height) / 2
            visible: panel.hasProgress
            phase: panel.progress.phase
        }

        Text {
            anchors.right: parent.right
            anchors.rightMargin: 20
            anchors.verticalCenter: parent.verticalCenter
            visible: !panel.hasProgress
            text: "Initializing..."
            font: Theme.caption
            color: Theme.secondary
        }
    }

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: 1
        color: Theme.separator
    }

    ScrollView {
        id: scroller

        Layout.fillWidth: true
        Layout.fillHeight: true
        contentWidth: availableWidth

        ColumnLayout {
            x: 20
            width: scroller.availableWidth - 40
            spacing: 24

            ScanSection {
                Layout.topMargin: 20
                title: "Performance"
                icon: "speedometer"

                PerformanceCards {
                    Layout.fillWidth: true
                    figures: panel.figures.performance
                    placeholder: !panel.hasProgress
                }
            }

            ScanSection {
                title: "Current Location"
                icon: "location.fill"

                LocationCrumbs {
                    Layout.fillWidth: true
                    crumbs: panel.figures.status.locationCrumbs
                    emptyText: panel.hasProgress ? "Waiting for scan to start..."
                                                    : "Preparing to scan..."
                }
            }

            ScanSection {
                title: "Statistics"
                icon: "chart.bar.fill"

                StatisticsGrid {
                    Layout.fillWidth: true
                    figures: panel.figures.statistics
                    placeholder: !panel.hasProgress
                }

                ScanProgressBar {
                    Layout.fillWidth: true
                    Layout.topMargin: 8 - Theme.spacingMedium
                    visible: panel.figures.hasEstimate
                    percentage: panel.figures.completedFraction
                }
            }

            ActivityLogView {
                Layout.fillWidth: true
                Layout.bottomMargin: 20
                entries: panel.activityLog
            }
        }
    }
}
