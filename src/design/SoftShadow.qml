import QtQuick

// A soft drop shadow for a rounded surface, made of a few widening translucent outlines so that it
// also renders where shader effects are unavailable (the software scene graph). Place it before
// the surface, anchored to it: SoftShadow { anchors.fill: card; radius: card.radius }.
Item {
    id: shadow

    property real radius: 12
    // How far the shadow spreads beyond the surface, and how dark its innermost ring is.
    property int spread: 6
    property real strength: 0.05
    property real offsetY: 2

    Repeater {
        model: shadow.spread
        Rectangle {
            required property int index
            anchors.fill: parent
            anchors.margins: -(index + 1)
            anchors.topMargin: -(index + 1) + shadow.offsetY
            anchors.bottomMargin: -(index + 1) - shadow.offsetY
            radius: shadow.radius + index + 1
            color: "transparent"
            border.width: 1
            border.color: Qt.rgba(0, 0, 0, shadow.strength * (1 - index / shadow.spread))
        }
    }
}
