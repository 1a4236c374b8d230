import QtQuick
import QtTest

// A test case the size of the main window, shown: hover, drags and shortcuts reach only items in
// a shown window.
TestCase {
    width: 1200
    height: 800
    visible: true
    when: windowShown
}
