import QtQuick
import QtTest
import Tessarine.Testing

// A test case the size of the main window that can save what a view rendered.
TestCase {
    width: 1200
    height: 800
    visible: true
    when: windowShown

    function saveScreenshot(item, name) {
        let saved = false
        verify(item.grabToImage(result => {
            result.saveToFile(Fixture.screenshotPath(name))
            saved = true
        }))
        tryVerify(() => saved)
    }
}
