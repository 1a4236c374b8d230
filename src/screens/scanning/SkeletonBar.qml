import QtQuick
import Tessarine.Design

// The grey bar that stands where a value will appear.
Rectangle {
    radius: 4
    color: Theme.withOpacity(Theme.secondary, 0.2)
}
