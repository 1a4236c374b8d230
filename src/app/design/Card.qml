import QtQuick
import Tessarine.App

// The white rounded surface that groups one block of content on the window background.
Rectangle {
    radius: Theme.radiusCard
    color: Theme.controlBackground
    border.width: 1
    border.color: Theme.withOpacity(Theme.separator, 0.8)
}
