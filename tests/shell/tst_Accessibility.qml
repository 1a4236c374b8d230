import QtQuick
import QtTest
import Tessarine
import Tessarine.App
import Tessarine.Screens
import Tessarine.Testing
import "../screens/qml"
import "../screens/qml/ViewSearch.js" as ViewSearch

// Every screen read through the accessibility tree that Qt gives screen readers: no control,
// card, chart, cell, row or field may be announced without a name, nor an icon glyph as text.
// On the way, every control a mouse can use must be in the Tab chain, or inside an item that is
// (a list or treemap that moves among its parts with the arrows); sheets count while open.
ScreenTestCase {
    id: testCase

    name: "Accessibility"

    Component {
        id: contentComponent
        ContentView {
            width: testCase.width
            height: testCase.height
        }
    }

    Component {
        id: helpComponent
        HelpWindow {}
    }

    Component {
        id: settingsComponent
        SettingsWindow {}
    }

    Component {
        id: alertComponent
        ErrorAlert {}
    }

    Component {
        id: menuBarComponent
        AppMenuBar {
            commands: AppCommands {}
        }
    }

    function initTestCase() {
        Accessibility.activate()
    }

    function cleanup() {
        if (AppState.isScanning)
            AppState.cancelScan()
        Fixture.clearProgress()
        Fixture.forgetFolderScans()
        AppState.clearError()
        AppState.currentView = AppState.Landing
    }

    // Read once everything has faded in: a screen reader skips what is fully transparent.
    // Tab is walked from keysFrom, an open sheet's content or the screen.
    function verifyNamed(item, what, keysFrom) {
        waitForRendering(item)
        tryVerify(() => ViewSearch.visibleItems(item, child => child.hasOwnProperty("isAnimated")
                                                              && child.opacity < 1).length === 0)
        const faults = Accessibility.faults(item)
        verify(faults.length === 0, what + " has " + faults.length + " faults:\n"
                                    + faults.join("\n"))
        if (keysFrom !== null)
            compare(Accessibility.unreachableControls(keysFrom || item), [], what)
    }

    function test_everyScreenNamesWhatItShows() {
        const content = createTemporaryObject(contentComponent, testCase)
        const menuBar = createTemporaryObject(menuBarComponent, testCase)
        verifyNamed(content, "the landing screen")
        menuBar.menus[0].open()
        tryVerify(() => menuBar.menus[0].opened)
        verifyNamed(content, "the File menu", null)
        menuBar.menus[0].close()

        Fixture.showProgress("/Users/ann/Projects/tessarine/src")
        AppState.currentView = AppState.Scanning
        verifyNamed(content, "the scanning screen")
        Fixture.clearProgress()

        AppState.openResult(Fixture.resultWithTree())
        tryVerify(() => ViewSearch.named(content, "treemapCells") !== null)
        verifyNamed(content, "the dashboard with its folder analysis")
        verify(findChild(content, "folderTreemap").treemap.drillDown(0))
        verifyNamed(content, "a drilled-down folder treemap")
        const exportSheet = findChild(content, "exportSheet")
        exportSheet.open()
        tryVerify(() => exportSheet.opened)
        verifyNamed(content, "the export sheet", exportSheet.contentItem)
        exportSheet.close()

        Fixture.showFullResult()
        verifyNamed(content, "a full dashboard")
        const analysis = findChild(content, "folderAnalysis")
        Fixture.holdBuild(analysis.controller.service)
        analysis.controller.build(analysis.result.rootPath)
        tryCompare(analysis.controller.service, "phaseName", "building")
        verifyNamed(content, "a folder tree build")
        analysis.controller.cancel()

        // Two scans of one folder give the history its trend chart.
        Fixture.saveElsewhere(Fixture.folderPath, 2)
        Fixture.saveElsewhere(Fixture.folderPath, 1)
        AppState.currentView = AppState.History
        tryVerify(() => ViewSearch.named(content, "trendChart") !== null, 5000)
        // Two selected: the comparison's and the deletion's buttons show.
        const circles = ViewSearch.visibleItems(content, item => item.objectName === "selectionCircle")
        mouseClick(circles[0])
        mouseClick(circles[1])
        verifyNamed(content, "the history")
        mouseClick(circles[0].parent, 200, 30, Qt.RightButton)
        const menu = findChild(content, "scanMenu")
        tryVerify(() => menu.opened)
        verifyNamed(content, "the scan menu", null)
        menu.close()
        tryVerify(() => !menu.visible)
        for (const name of ["comparisonSheet", "deleteConfirmation"]) {
            const sheet = findChild(content, name)
            sheet.open()
            tryVerify(() => sheet.opened)
            verifyNamed(content, name, sheet.contentItem)
            sheet.close()
        }

        createTemporaryObject(alertComponent, content)
        AppState.error = AppError.invalidPath("/x")
        verifyNamed(content, "the error alert", null)
    }

    // The windows beside the main one. The help's keys are this platform's: the text's Command
    // key is Ctrl here.
    function test_helpAndSettingsNameWhatTheyShow() {
        const settings = createTemporaryObject(settingsComponent, testCase)
        settings.showSettings()
        verifyNamed(settings.contentItem, "settings")

        const help = createTemporaryObject(helpComponent, testCase)
        help.showHelp()
        const sidebar = findChild(help.contentItem, "helpSidebar")
        verify(ViewSearch.shows(sidebar, "Version " + AppVersion.text))
        for (let section = 0; section < 7; ++section) {
            sidebar.currentIndex = section
            verifyNamed(help.contentItem, "help section " + (section + 1))
            verify(!ViewSearch.shows(help.contentItem, "Cmd"), "help section " + (section + 1))
            verify(section !== 5 || ViewSearch.shows(help.contentItem, "Ctrl"))
        }
    }

    // Alt and one letter reach every menu and entry: no letter stands for two menus of the bar,
    // nor for two entries of one menu.
    function test_everyMenuHasItsOwnMnemonic() {
        const menus = Array.from(createTemporaryObject(menuBarComponent, testCase).menus)
        const unique = texts => {
            const letters = texts.map(text => (/&(\w)/.exec(text) || ["", text])[1].toLowerCase())
            return letters.every(letter => letter.length === 1)
                   && new Set(letters).size === letters.length
        }
        verify(unique(menus.map(menu => menu.title)))
        for (const menu of menus) {
            const texts = []
            for (let i = 0; i < menu.count; ++i)
                if (menu.itemAt(i).text)
                    texts.push(menu.itemAt(i).text)
            verify(texts.length > 0 && unique(texts), texts.join(", "))
        }
    }
}
