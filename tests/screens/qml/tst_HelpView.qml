import QtQuick
import QtTest
import Tessarine.App
import Tessarine.Testing
import Tessarine.Screens
import "ViewSearch.js" as ViewSearch

ScreenTestCase {
    id: testCase

    name: "HelpView"

    Component {
        id: helpComponent

        HelpView {
            width: 850
            height: 650
        }
    }

    function test_opensOnTheFirstOfSevenSectionsInOrder() {
        const help = createTemporaryObject(helpComponent, testCase)
        const sidebar = findChild(help, "helpSidebar")
        const titles = ["Getting Started", "Scanning Folders", "Understanding Results",
                        "Folder Treemap", "History & Export", "Keyboard Shortcuts",
                        "Tips & Best Practices"]
        const shown = ViewSearch.texts(sidebar)
        compare(shown.filter(text => titles.includes(text)), titles)
        compare(help.selectedSection, 0)
        verify(ViewSearch.shows(findChild(help, "helpPage"), "Quick Start"))
        verify(ViewSearch.shows(sidebar, "Version " + AppVersion.text))

        mouseClick(findChild(help, "helpSection_5"))
        tryVerify(() => ViewSearch.shows(findChild(help, "helpPage"), "Navigation"))
        // The Command key of the text is Ctrl here.
        verify(ViewSearch.shows(findChild(help, "helpPage"), "Ctrl"))
        verify(!ViewSearch.shows(findChild(help, "helpPage"), "Cmd"))
    }
}
