import QtQuick
import Tessarine.Design

// The rounded control surface that groups one block of content on the window background, lifted by
// a faint shadow. Set elevated: false for a card inside another surface.
Rectangle {
    id: card

    property bool elevated: true

    radius: Theme.radiusCard
    color: Theme.controlBackground
    border.width: 1
    border.color: Theme.withOpacity(Theme.separator, 0.8)
    // A card is one group to a screen reader; each card names itself by its title and figure.
    Accessible.role: Accessible.Grouping

    SoftShadow {
        z: -1
        visible: card.elevated
        anchors.fill: parent
        radius: card.radius
        spread: 4
        strength: 0.035
        offsetY: 1
    }
}
