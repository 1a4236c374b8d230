#include "ScanFolders.h"

#include "app/AppError.h"
#include "app/ErrorHandle.h"
#include "app/FolderDrop.h"
#include "app/ResultHandle.h"
#include "app/SymbolTable.h"
#include "model/FileCategory.h"
#include "scanner/ScanError.h"
#include "storage/PersistenceError.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace tessarine;

namespace {

ResultHandle resultAt(const QString& rootPath) {
    AnalysisResult result;
    result.rootPath = rootPath;
    return ResultHandle(std::move(result));
}

} // namespace

class AppValuesTest : public QObject {
    Q_OBJECT

private slots:
    void errorTextsWrapTheLowerLayersDescription() {
        const ScanError denied{ScanError::Kind::cannotAccessDirectory, QStringLiteral("/x y")};
        const AppError scan = AppError::scanFailed(denied.errorDescription());
        QCOMPARE(scan.errorDescription(),
                 QStringLiteral("Scan failed: Cannot access directory: /x y"));
        QCOMPARE(*scan.recoverySuggestion(),
                 QStringLiteral("Try selecting a different folder or check if you have "
                                "permission to access it."));

        const PersistenceError store{PersistenceError::Kind::directoryNotAccessible, std::nullopt};
        QCOMPARE(AppError::saveFailed(store.errorDescription()).errorDescription(),
                 QStringLiteral("Failed to save: Storage directory not accessible"));
        QCOMPARE(AppError::loadFailed(QStringLiteral("x")).errorDescription(),
                 QStringLiteral("Failed to load: x"));
        QCOMPARE(AppError::exportFailed(QStringLiteral("x")).errorDescription(),
                 QStringLiteral("Export failed: x"));
        QCOMPARE(*AppError::exportFailed(QString()).recoverySuggestion(),
                 QStringLiteral("Check if you have write permission to the selected location."));
        QCOMPARE(AppError::permissionDenied(QStringLiteral("/p")).errorDescription(),
                 QStringLiteral("Permission denied for: /p"));
        QCOMPARE(*AppError::permissionDenied(QString()).recoverySuggestion(),
                 QStringLiteral("Check System Preferences > Security & Privacy to grant access."));
        QCOMPARE(AppError::invalidPath(QStringLiteral("/p")).errorDescription(),
                 QStringLiteral("Invalid path: /p"));
        QCOMPARE(*AppError::invalidPath(QString()).recoverySuggestion(),
                 QStringLiteral("The selected path may have been moved or deleted."));

        const AppError unknown = AppError::unknown(QString());
        QCOMPARE(unknown.errorDescription(), QString());
        QCOMPARE(*unknown.recoverySuggestion(),
                 QStringLiteral("Please try again or restart the application."));

        const AppError cancelled = AppError::cancelled();
        QCOMPARE(cancelled.errorDescription(), QStringLiteral("Operation was cancelled"));
        QVERIFY(!cancelled.recoverySuggestion());
    }

    void errorIdentityIsItsDescription() {
        QCOMPARE(AppError::loadFailed(QStringLiteral("a")).identity(),
                 QStringLiteral("Failed to load: a"));
        // Different cases that read the same are the same error to the alert.
        QCOMPARE(AppError::unknown(QStringLiteral("Invalid path: /p")).identity(),
                 AppError::invalidPath(QStringLiteral("/p")).identity());

        const ErrorHandle none;
        QVERIFY(!none.present());
        QCOMPARE(none.identity(), QStringLiteral("unknown"));
        QCOMPARE(none.errorDescription(), QString());
        const ErrorHandle cancelled(AppError::cancelled());
        QVERIFY(cancelled.present());
        QVERIFY(!cancelled.hasRecoverySuggestion());
        QCOMPARE(cancelled.recoverySuggestion(), QString());
    }

    void folderNameIsTheTextAfterTheLastSlash() {
        QCOMPARE(resultAt(QStringLiteral("/home/ann/Music")).folderName(), QStringLiteral("Music"));
        QCOMPARE(resultAt(QStringLiteral("/")).folderName(), QString());
        QCOMPARE(resultAt(QStringLiteral("relative")).folderName(), QStringLiteral("relative"));
        QCOMPARE(resultAt(QString()).folderName(), QStringLiteral("Unknown"));
        QCOMPARE(ResultHandle().folderName(), QStringLiteral("Unknown"));
    }

    void categoryBreakdownIsLargestFirstAndStable() {
        AnalysisResult result;
        for (auto [category, size] : {std::pair{FileCategory::code, 5},
                                      {FileCategory::images, 9},
                                      {FileCategory::audio, 5}}) {
            CategoryStats stats;
            stats.category = category;
            stats.totalSize = size;
            result.categoryBreakdown.append(stats);
        }
        const QVariantList rows = ResultHandle(result).categoryBreakdown();
        QStringList names;
        for (const QVariant& row : rows)
            names << row.toMap().value(QStringLiteral("name")).toString();
        QCOMPARE(names, (QStringList{rawValue(FileCategory::images), rawValue(FileCategory::code),
                                     rawValue(FileCategory::audio)}));
    }

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
