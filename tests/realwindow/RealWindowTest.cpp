#include "RealWindow.h"
#include "FileTrees.h"
#include "StuckFolderWindowTest.h"

#include <QFile>
#include <QSettings>
#include <QTest>

using namespace tessarine;
using namespace tessarine::testing;

// The real program in a real X window, used as a person uses it: one scenario, step by step, over
// one generated folder. Every step waits on what the window shows and leaves a screenshot in
// <build>/realwindow/. No step may make the program print a warning.
class RealWindowTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    std::unique_ptr<RealApp> m_app;
    // The dashboard's scrolling area.
    QRect m_page;

private slots:
    void initTestCase() {
        // Folders of clearly different sizes, two levels deep, with files of several categories.
        const QString root = m_folder.filePath(QStringLiteral("Projects"));
        const char* extensions[] = {"jpg", "mp4", "txt", "zip", "cpp", "mp3"};
        for (int folder = 0; folder < 6; ++folder) {
            for (int sub = 0; sub < 3; ++sub) {
                for (int file = 0; file < 4; ++file) {
                    writeFile(QStringLiteral("%1/folder%2/part%3/file%4.%5")
                                  .arg(root)
                                  .arg(folder)
                                  .arg(sub)
                                  .arg(file)
                                  .arg(QLatin1String(extensions[(folder + file) % 6])),
                              (6 - folder) * (3 - sub) * 9'000 + file * 1'000);
                }
            }
        }
        // Counted once Settings say so.
        writeFile(root + QStringLiteral("/.cache/blob.bin"), 50'000);
        m_app = std::make_unique<RealApp>(QStringList{root});
        QVERIFY(m_app->start());
    }

    // A step that ends the program has taken its own picture while it still showed.
    void cleanup() {
        if (!m_app->isRunning())
            return;
        m_app->screenshot(QString::fromLatin1(QTest::currentTestFunction()));
        QCOMPARE(m_app->warnings(), QStringList());
    }

    void dashboardAppears() {
        QVERIFY(!m_app->waitFor(QStringLiteral("Storage Treemap"), 30'000).isEmpty());
        m_page = m_app->find(QStringLiteral("dashboardScroller"));
        QVERIFY(m_app->waitUntilStill(m_page));
    }

    // The page scrolls with the wheel wherever the pointer is, over the largest files too, all
    // the way down and back up.
    void wheelScrollsWholePage() {
        const QString table = QStringLiteral("largestFilesTableView");
        const QRect top = m_app->scrollTo(table, m_page.center(), RealApp::Direction::Down,
                                          RealApp::Showing::Partly);
        QVERIFY(!top.isEmpty());
        m_app->wheel(top.center(), 2);
        QVERIFY(waitUntil([&] { return m_app->find(table).top() < top.top() - 60; }));
        QVERIFY(!m_app->scrollTo(QStringLiteral("File Extensions"), top.center()).isEmpty());
        QVERIFY(
            !m_app->scrollTo(QStringLiteral("rescanButton"), top.center(), RealApp::Direction::Up)
                 .isEmpty());
    }

    // The folder treemap is painted whole as soon as it shows, while the pointer rests where the
    // button was, over one of its cells.
    void folderTreemapPaintedAtOnce() {
        const QRect button =
            m_app->scrollTo(QStringLiteral("Build Folder Treemap"), m_page.center());
        QVERIFY(!button.isEmpty());
        m_app->click(button.center());
        const QRect cells = m_app->waitFor(QStringLiteral("treemapCells"), 30'000);
        QVERIFY(!cells.isEmpty());
        QVERIFY2(cells.contains(button.center()), "the pointer should rest over the treemap");
        QVERIFY(waitUntil([&] { return colouredShare(m_app->grab(cells)) > 0.8; }));
    }

    // A double click drills into a folder; "Back" leads out again.
    void drillDownAndBack() {
        const QRect cells = m_app->scrollTo(QStringLiteral("treemapCells"), m_page.center());
        QVERIFY(!cells.isEmpty());
        const QImage root = m_app->grab(cells);
        // The largest folder lies top left, and its own label row is not covered by its folders.
        m_app->doubleClick(cells.topLeft() + QPoint(30, 8));
        QVERIFY(!m_app->waitFor(QStringLiteral("Back")).isEmpty());
        QVERIFY(m_app->waitUntilStill(cells));
        QVERIFY(m_app->grab(cells) != root);
        QVERIFY(m_app->click(QStringLiteral("Back")));
        QVERIFY(m_app->waitUntilGone(QStringLiteral("Back")));
    }

    // The details of a hovered category stay while a click selects it.
    void categoryHoverSurvivesClick() {
        const QRect cells = m_app->scrollTo(QStringLiteral("categoryTreemapCells"), m_page.center(),
                                            RealApp::Direction::Up);
        QVERIFY(!cells.isEmpty());
        const QString details = QStringLiteral("treemapDetailsBar");
        m_app->moveTo(cells.center());
        QVERIFY(!m_app->waitFor(details).isEmpty());
        m_app->click(cells.center());
        QVERIFY(m_app->waitUntilStill(m_page));
        QVERIFY(!m_app->find(details).isEmpty());
    }

    // CSV under a name typed into the save dialog, read back from the disk.
    void exportUnderTypedName() {
        QVERIFY(m_app->click(QStringLiteral("exportToolbarButton")));
        QVERIFY(m_app->click(QStringLiteral("exportFormatCSV")));
        QVERIFY(m_app->click(QStringLiteral("exportButton")));
        // The dialog hands the keyboard to its file list once the list has loaded, which may be
        // after the click into the name field: the name is typed until the field shows it.
        QVERIFY(waitUntil([&] {
            m_app->click(QStringLiteral("fileNameTextField"));
            m_app->key(QStringLiteral("ctrl+a"));
            m_app->type(QStringLiteral("mine.csv"));
            return !m_app->find(QStringLiteral("mine.csv")).isEmpty();
        }));
        // The dialog's accept button, as Qt's own dialog labels it when the desktop has none.
        QVERIFY(m_app->click(QStringLiteral("Open")));
        QFile file(m_app->home() + QStringLiteral("/mine.csv"));
        QVERIFY(waitUntil([&] { return file.exists(); }));
        QVERIFY(m_app->waitUntilGone(QStringLiteral("exportButton")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("file3.zip"));
    }

    // Settings by their key: the switch is kept in the program's own settings file at once, and
    // Ctrl+W closes Settings alone.
    void settingsRememberHiddenItems() {
        m_app->key(QStringLiteral("ctrl+comma"));
        QVERIFY(m_app->click(QStringLiteral("includeHiddenSwitch")));
        QSettings settings(m_app->home() + QStringLiteral("/config/Tessarine/Tessarine.conf"),
                           QSettings::IniFormat);
        QVERIFY(waitUntil([&] {
            settings.sync();
            return settings.value(QStringLiteral("scan/includeHidden")).toBool();
        }));
        m_app->key(QStringLiteral("ctrl+w"));
        QVERIFY(m_app->waitUntilGone(QStringLiteral("includeHiddenSwitch")));
        QVERIFY(!m_app->find(QStringLiteral("dashboardScroller")).isEmpty());
    }

    // The history and help by their keys; help opened again starts on its first section.
    void historyAndHelpByKeys() {
        m_app->key(QStringLiteral("ctrl+shift+h"));
        QVERIFY(!m_app->waitFor(QStringLiteral("Scan History")).isEmpty());
        const QString introduction = QStringLiteral(
            "Tessarine helps you understand how disk space is used across your folders with "
            "beautiful visualizations and detailed insights.");
        m_app->key(QStringLiteral("ctrl+question"));
        QVERIFY(!m_app->waitFor(introduction).isEmpty());
        QVERIFY(m_app->click(QStringLiteral("Scanning Folders")));
        QVERIFY(m_app->waitUntilGone(introduction));
        m_app->key(QStringLiteral("ctrl+w"));
        QVERIFY(m_app->waitUntilGone(QStringLiteral("helpSidebar")));
        m_app->key(QStringLiteral("ctrl+question"));
        QVERIFY(!m_app->waitFor(introduction).isEmpty());
    }

    // Ctrl+Q ends the program from the help window as from the main one.
    void quitByKeys() {
        m_app->key(QStringLiteral("ctrl+q"));
        QVERIFY(m_app->waitForExit());
    }

    // Started again, the program scans as its Settings were left: the hidden file counts, and the
    // header says so. Ctrl+W on the last window ends it.
    void nextLaunchCountsHiddenItems() {
        QVERIFY(m_app->start());
        QVERIFY(!m_app->waitFor(QStringLiteral("hidden items included"), 30'000).isEmpty());
        // A click gives the new window the keyboard.
        QVERIFY(m_app->click(QStringLiteral("Files, 73")));
        m_app->screenshot(QString::fromLatin1(QTest::currentTestFunction()));
        m_app->key(QStringLiteral("ctrl+w"));
        QVERIFY(m_app->waitForExit());
    }
};

int main(int argc, char* argv[]) {
    return runRealWindowTest<RealWindowTest>(argc, argv, runStuckFolderWindowTest);
}

#include "RealWindowTest.moc"
