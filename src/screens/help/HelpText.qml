import QtQuick
import Tessarine.Design
import Tessarine.Screens

// A paragraph of help text, wrapped to its card: plain, a semibold lead line, or a secondary
// note.
Text {
    property bool lead: false
    property bool note: false

    // Help is read as well as seen.
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    width: parent ? parent.width : 0
    wrapMode: Text.Wrap
    font: lead ? Theme.weighted(Theme.body, Font.DemiBold) : Theme.body
    color: note ? Theme.secondary : Theme.primary
}
