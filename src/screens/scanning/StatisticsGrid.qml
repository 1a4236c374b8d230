import QtQuick
import QtQuick.Layouts
import Tessarine.Screens

// The six statistics boxes in three flexible columns, or their placeholders before the first
// snapshot.
GridLayout {
    id: grid

    required property FigureListModel figures
    required property bool placeholder

    columns: 3
    columnSpacing: 12
    rowSpacing: 12

    Repeater {
        model: grid.figures

        Loader {
            id: slot

            required property string title
            required property string value
            required property string color

            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.minimumWidth: 10
            sourceComponent: grid.placeholder ? skeleton : box

            Component {
                id: box

                ScanStatBox {
                    label: slot.title
                    value: slot.value
                    colorName: slot.color
                }
            }

            Component {
                id: skeleton

                LoadingStatBoxSkeleton {
                    label: slot.title
                    colorName: slot.color
                }
            }
        }
    }
}
