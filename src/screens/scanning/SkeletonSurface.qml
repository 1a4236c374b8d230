import QtQuick
import Tessarine.Design

// The faint tinted ground of a placeholder card.
Rectangle {
    property string colorName

    radius: 8
    color: Theme.withOpacity(Theme.named(colorName), 0.05)
}
