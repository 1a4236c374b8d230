import QtQuick
import QtTest
import Tessarine.Testing

// A test case the size of the main window, shown.
TestCase {
    width: 1200
    height: 800
    visible: true
    when: windowShown
}
