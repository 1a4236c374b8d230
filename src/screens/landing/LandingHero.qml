import QtQuick
import Tessarine.Design
import Tessarine.Screens

// The application's badge, name and promise at the top of the start screen.
Column {
    spacing: Theme.spacingLarge
    Accessible.role: Accessible.Heading
    Accessible.name: "Tessarine"
    Accessible.description: "Analyze your disk space with beautiful visualizations"

    Item {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 100
        height: 100

        SoftShadow {
            anchors.fill: parent
            radius: badge.radius
            spread: 8
            strength: 0.08
            offsetY: 4
        }

        Rectangle {
            id: badge

            anchors.fill: parent
            radius: 24
            color: Theme.material
            border.width: 1
            border.color: Theme.materialBorder

            GradientIcon {
                anchors.centerIn: parent
                symbol: "chart.pie.fill"
                size: 44
            }
        }
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: "Tessarine"
        font: Theme.weighted(Theme.largeTitle, Font.Bold)
        color: Theme.primary
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: "Analyze your disk space with beautiful visualizations"
        font: Theme.title3
        color: Theme.secondary
    }
}
