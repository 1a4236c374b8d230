import QtQuick
import QtTest
import Tessarine
import Tessarine.App

// The tested items live in this visible window content: a TestCase itself is never shown.
Item {
    id: stage

    width: 800
    height: 600

    TestCase {
        id: testCase

        name: "ErrorAlert"
        when: windowShown

        Component {
            id: alertComponent
            ErrorAlert {}
        }

        function cleanup() {
            AppState.clearError()
        }

        function test_alertShowsTheErrorAndOkClearsIt() {
            const alert = createTemporaryObject(alertComponent, stage)
            verify(!alert.visible)

            AppState.error = AppError.scanFailed("Cannot access directory: /x")
            tryCompare(alert, "opened", true)
            compare(alert.title, "Error")
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

        function test_escapeDismissesAndClears() {
            const alert = createTemporaryObject(alertComponent, stage)
            AppState.error = AppError.unknown("")
            tryCompare(alert, "opened", true)
            verify(!findChild(alert.contentItem, "errorDescription").visible)
            keyClick(Qt.Key_Escape)
            tryCompare(alert, "visible", false)
            verify(!AppState.hasError)
        }
    }
}
