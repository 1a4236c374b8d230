import QtQuick
import Tessarine.Design

// The ring around the control that the keyboard moved to, so the user sees where keys will go.
// Controls set shown from visualFocus, which keys (Tab, Backtab, the arrows of a list) turn on and
// a click does not: a mouse user never sees a ring. It is drawn just outside its parent, so it
// never covers the control's own border or label.
Rectangle {
    property bool shown: false
    property real controlRadius: Theme.radiusSmall
    // How far the ring stands out of its parent; 0 draws it just inside, for a parent whose view
    // clips at its edges.
    property real outset: 3

    anchors.fill: parent
    anchors.margins: -outset
    radius: controlRadius + outset
    visible: shown
    color: "transparent"
    border.width: 3
    border.color: Theme.withOpacity(Theme.accent, 0.55)
}
