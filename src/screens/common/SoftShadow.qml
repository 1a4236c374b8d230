import QtQuick

// A blurred shadow under a rounded shape, faked with a few widening translucent layers since
// the software renderer cannot blur. Anchor it to the shape and place it below it.
Item {
    id: shadow

    property real radius: 0
    property real strength: 0.1
    property real offsetY: 4

    Repeater {
        model: 4

        Rectangle {
            required property int index
            readonly property real spread: (index + 1) * 2

            x: -spread
            y: -spread + shadow.offsetY
            width: shadow.width + 2 * spread
            height: shadow.height + 2 * spread
            radius: shadow.radius + spread
            color: Qt.rgba(0, 0, 0, shadow.strength / 4)
        }
    }
}
