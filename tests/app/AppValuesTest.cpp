#include "ScanFolders.h"

#include "app/FolderDrop.h"
#include "app/SymbolTable.h"
#include "model/FileCategory.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;

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
};

QTEST_GUILESS_MAIN(AppValuesTest)
#include "AppValuesTest.moc"
