#include "ReleaseInfo.h"
#include "ScanFolders.h"
#include "app/FolderDrop.h"
#include "design/SymbolTable.h"
#include "model/FileCategory.h"
#include "shell/LaunchOptions.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;
using Action = LaunchOptions::Action;

// What the application makes of its input: launch arguments, dropped URLs, category symbols.
class AppValuesTest : public QObject {
    Q_OBJECT

private slots:
    void onlyLocalFoldersAreDropTargets() {
        QTemporaryDir root;
        const QString file = root.filePath(QStringLiteral("notes.txt"));
        testing::writeFile(file, 10);
        QVERIFY(QFile::link(root.path(), root.filePath(QStringLiteral("link"))));

        QVERIFY(FolderDrop::isFolder(QUrl::fromLocalFile(root.path())));
        QVERIFY(FolderDrop::isFolder(QUrl::fromLocalFile(root.filePath(QStringLiteral("link")))));
        QVERIFY(!FolderDrop::isFolder(QUrl::fromLocalFile(file)));
        QVERIFY(!FolderDrop::isFolder(QUrl::fromLocalFile(root.filePath(QStringLiteral("gone")))));
        QVERIFY(!FolderDrop::isFolder(QUrl(QStringLiteral("https://example.com/folder/"))));
        QVERIFY(!FolderDrop::isFolder(QUrl()));
    }

    void everyCategorySymbolHasAGlyph() {
        for (FileCategory category : allFileCategories())
            QVERIFY2(SymbolTable::symbolNames().contains(iconName(category)),
                     qPrintable(iconName(category)));
        QCOMPARE(SymbolTable::codepoint(QStringLiteral("no.such.symbol")),
                 SymbolTable::fallbackCodepoint());
    }

    void folderToScan_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("folder"); // null: the window opens without a scan
        QTest::newRow("none") << QStringList{} << QString();
        QTest::newRow("relative") << QStringList{"Photos/2024"} << "/home/ann/Photos/2024";
        QTest::newRow("absolute, trailing slash")
            << QStringList{"/srv/My Files/"} << "/srv/My Files";
        QTest::newRow("parent") << QStringList{".."} << "/home";
        QTest::newRow("file URL") << QStringList{"file:///srv/My%20Files"} << "/srv/My Files";
        QTest::newRow("named like an option") << QStringList{"--", "-v"} << "/home/ann/-v";
        // Left to the scan, which reports it in the window like any folder it cannot read.
        QTest::newRow("empty") << QStringList{""} << QStringLiteral("");
    }

    void folderToScan() {
        QFETCH(QStringList, arguments);
        QFETCH(QString, folder);
        const LaunchOptions launch =
            parseLaunchArguments(QStringList{"tessarine"} + arguments, "/home/ann");
        QCOMPARE(launch.action, Action::OpenWindow);
        QCOMPARE(launch.folder, folder.isNull() ? std::nullopt : std::optional(folder));
    }

    void answersWithoutWindow_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<Action>("action");
        QTest::addColumn<QString>("text");
        QTest::newRow("help") << QStringList{"-h"} << Action::PrintAndExit << "[FOLDER]";
        QTest::newRow("help after a folder")
            << QStringList{"/srv", "--help"} << Action::PrintAndExit << "[FOLDER]";
        QTest::newRow("version") << QStringList{"--version"} << Action::PrintAndExit
                                 << QStringLiteral("Tessarine %1\n").arg(versionText);
        QTest::newRow("two folders")
            << QStringList{"/a", "/b"} << Action::FailWithUsage << "one FOLDER";
        QTest::newRow("unknown option")
            << QStringList{"--fast", "/a"} << Action::FailWithUsage << "fast";
    }

    void answersWithoutWindow() {
        QFETCH(QStringList, arguments);
        QFETCH(Action, action);
        QFETCH(QString, text);
        const LaunchOptions launch =
            parseLaunchArguments(QStringList{"tessarine"} + arguments, "/home/ann");
        QCOMPARE(launch.action, action);
        QVERIFY2(launch.text.contains(text), qPrintable(launch.text));
        QCOMPARE(launch.folder, std::nullopt);
    }
};

QTEST_GUILESS_MAIN(AppValuesTest)
#include "AppValuesTest.moc"
