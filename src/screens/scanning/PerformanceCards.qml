import QtQuick
import QtQuick.Layouts
import Tessarine.Screens

// The four performance cards side by side, two by two where the panel is narrow, or their
// placeholders before the first snapshot.
GridLayout {
    id: cards

    required property FigureListModel figures
    required property bool placeholder

    columns: width >= 4 * 130 + 3 * columnSpacing ? 4 : 2
    columnSpacing: 12
    rowSpacing: 12

    Repeater {
        model: cards.figures

        Loader {
            id: slot

            required property string title
            required property string value
            required property string detail
            required property string icon
            required property string color

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            sourceComponent: cards.placeholder ? skeleton : card

            Component {
                id: card

                ScanMetricCard {
                    title: slot.title
                    value: slot.value
                    unit: slot.detail
                    icon: slot.icon
                    colorName: slot.color
                }
            }

            Component {
                id: skeleton

                LoadingMetricCardSkeleton {
                    title: slot.title
                    colorName: slot.color
                }
            }
        }
    }
}
