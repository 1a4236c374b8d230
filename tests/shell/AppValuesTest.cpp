#include "FileTrees.h"
#include "ReleaseInfo.h"
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
    }

    void everyCategorySymbolHasAGlyph() {
        for (FileCategory category : allFileCategories())
            QVERIFY2(SymbolTable::symbolNames().contains(iconName(category)),
                     qPrintable(iconName(category)));
        QCOMPARE(SymbolTable::codepoint(QStringLiteral("no.such.symbol")),
                 SymbolTable::fallbackCodepoint());
    }

    void launchArguments_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<Action>("action");
        QTest::addColumn<QString>("folder"); // null: no scan at start
        QTest::addColumn<QString>("text");   // what the answer without a window holds
        const auto opens = [](const char* row, const QStringList& arguments,
                              const QString& folder) {
            QTest::newRow(row) << arguments << Action::OpenWindow << folder << QString();
        };
        opens("none", {}, QString());
        opens("relative", {"Photos/2024"}, "/home/ann/Photos/2024");
        opens("absolute, trailing slash", {"/srv/My Files/"}, "/srv/My Files");
        opens("file URL", {"file:///srv/My%20Files"}, "/srv/My Files");
        opens("named like an option", {"--", "-v"}, "/home/ann/-v");
        // Left to the scan, which reports it in the window like any folder it cannot read.
        opens("empty", {""}, QStringLiteral(""));
        const auto answers = [](const char* row, const QStringList& arguments, Action action,
                                const QString& text) {
            QTest::newRow(row) << arguments << action << QString() << text;
        };
        answers("help", {"-h"}, Action::PrintAndExit, "[FOLDER]");
        answers("help after a folder", {"/srv", "--help"}, Action::PrintAndExit, "[FOLDER]");
        answers("version", {"--version"}, Action::PrintAndExit,
                QStringLiteral("Tessarine %1\n").arg(versionText));
        answers("two folders", {"/a", "/b"}, Action::FailWithUsage, "one FOLDER");
        answers("unknown option", {"--fast", "/a"}, Action::FailWithUsage, "fast");
    }

    void launchArguments() {
        QFETCH(QStringList, arguments);
        QFETCH(Action, action);
        QFETCH(QString, folder);
        QFETCH(QString, text);
        const LaunchOptions launch =
            parseLaunchArguments(QStringList{"tessarine"} + arguments, "/home/ann");
        QCOMPARE(launch.action, action);
        QCOMPARE(launch.folder, folder.isNull() ? std::nullopt : std::optional(folder));
        QVERIFY2(launch.text.contains(text), qPrintable(launch.text));
    }
};

QTEST_GUILESS_MAIN(AppValuesTest)
#include "AppValuesTest.moc"
