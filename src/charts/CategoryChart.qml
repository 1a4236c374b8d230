import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Tessarine.Design
import Tessarine.Charts

// "Storage by Category": one horizontal bar per category, largest first, growing into place when
// the card appears, over a byte-count axis; the legend below selects a category, which dims the
// other bars here and outlines its cell in the treemap.
ChartCard {
    id: card
    Accessible.name: "Storage by Category, " + categories.count + " categories"

    required property analysisResult result
    required property CategorySelection selection
    property bool isAnimated: false
    readonly property bool hasSelection: selection.category >= 0
    readonly property int selectedRow: categories.rowOf(selection.category)

    Component.onCompleted: isAnimated = true

    CategoryListModel {
        id: categories

        result: card.result
    }

    ChartHeader {
        title: "Storage by Category"
        symbol: "chart.bar.fill"
        symbolColor: Theme.blue

        AbstractButton {
            id: clearButton

            objectName: "clearCategoryButton"
            Accessible.role: Accessible.Button
            Accessible.name: "Clear selection of " + selectedName.name
            visible: card.hasSelection
            leftPadding: 8
            rightPadding: 8
            topPadding: 4
            bottomPadding: 4
            onClicked: card.selection.clear()

            background: Rectangle {
                radius: height / 2
                color: Theme.withOpacity(Theme.named(selectedName.colorName), 0.2)

                FocusRing {
                    shown: clearButton.visualFocus
                    controlRadius: parent.radius
                }
            }

            // The selected category's figures, read from its legend row.
            QtObject {
                id: selectedName

                readonly property Item entry: legendEntries.itemAt(card.selectedRow)
                readonly property string name: entry ? entry.name : ""
                readonly property string colorName: entry ? entry.colorName : ""
            }

            contentItem: ButtonLabel {
                text: selectedName.name
                font: Theme.caption
                spacing: 4
                color: Theme.primary
                // The name first, then the symbol that says the click clears it.
                LayoutMirroring.enabled: true
                LayoutMirroring.childrenInherit: true
                symbol: "xmark.circle.fill"
            }

            HoverHandler { cursorShape: Qt.PointingHandCursor }
        }
    }

    CategoryBars {
        Layout.fillWidth: true
        model: categories
        selection: card.selection
        isAnimated: card.isAnimated
    }

    GridLayout {
        id: legend

        Layout.fillWidth: true
        // Adaptive columns of at least 140 points.
        columns: Math.max(1, Math.floor((width + 8) / (140 + 8)))
        rowSpacing: 8
        columnSpacing: 8

        // The arrows move between the categories, Space or Return selects one.
        FocusSteps {
            id: legendSteps
            within: legend
        }

        Keys.onLeftPressed: legendSteps.step(false)
        Keys.onUpPressed: legendSteps.step(false)
        Keys.onRightPressed: legendSteps.step(true)
        Keys.onDownPressed: legendSteps.step(true)

        Repeater {
            id: legendEntries

            model: categories

            CategoryLegendEntry {
                objectName: "legendEntry"
                visible: index < 8
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                selected: card.selection.category === category
                onToggled: card.selection.toggle(category)
            }
        }
    }
}
