import QtQuick
import QtTest
import Tessarine
import Tessarine.App

TestCase {
    id: testCase

    name: "ErrorAlert"
    width: 800
    height: 600
    // Hover, drags and shortcuts reach only items in a shown window.
    visible: true
    when: windowShown

    Component {
        id: alertComponent
        ErrorAlert {}
    }

    function cleanup() {
        AppState.clearError()
    }

    function test_alertShowsTheErrorAndOkClearsIt() {
        const alert = createTemporaryObject(alertComponent, testCase)
        AppState.error = AppError.scanFailed("Cannot access directory: /x")
        tryCompare(alert, "opened", true)
        compare(findChild(alert.contentItem, "errorDescription").text,
                "Scan failed: Cannot access directory: /x")
        const suggestion = findChild(alert.contentItem, "recoverySuggestion")
        verify(suggestion.visible)
        compare(suggestion.text,
                "Try selecting a different folder or check if you have permission to access it.")

        // A newer error replaces the one on show.
        AppState.error = AppError.cancelled()
        compare(findChild(alert.contentItem, "errorDescription").text, "Operation was cancelled")
        verify(!suggestion.visible)

        mouseClick(findChild(alert.contentItem, "okButton"))
        tryCompare(alert, "visible", false)
        verify(!AppState.hasError)
    }

    // Escape dismisses, and so does Return, the key of "OK".
    function test_keysDismissAndClear() {
        const alert = createTemporaryObject(alertComponent, testCase)
        for (const key of [Qt.Key_Escape, Qt.Key_Return]) {
            AppState.error = AppError.unknown("")
            tryCompare(alert, "opened", true)
            verify(!findChild(alert.contentItem, "errorDescription").visible)
            keyClick(key)
            tryCompare(alert, "visible", false)
            verify(!AppState.hasError)
        }
    }
}
