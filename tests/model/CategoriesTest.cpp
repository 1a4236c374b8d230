#include "model/FileCategory.h"
#include "model/FolderColor.h"

#include <QTest>

#include <thread>
#include <vector>

using namespace tessarine;

class CategoriesTest : public QObject {
    Q_OBJECT

private slots:
    // First, so that the threads race to build the table.
    void concurrentFirstLookups() {
        std::vector<FileCategory> found(8, FileCategory::other);
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < found.size(); ++i)
            threads.emplace_back([&found, i] { found[i] = categoryForExtension(u"flac"); });
        for (std::thread& thread : threads)
            thread.join();
        for (FileCategory category : found)
            QCOMPARE(category, FileCategory::audio);
    }

    // Every key is reachable through the lookup, whatever its length or spelling.
    void everyKnownExtensionLeadsBack() {
        for (FileCategory category : allFileCategories()) {
            for (const QString& extension : knownExtensions(category)) {
                QCOMPARE(extension, extension.toLower().trimmed());
                QCOMPARE(categoryForExtension(extension), category);
                QCOMPARE(categoryForExtension(extension.toUpper()), category);
            }
        }
        QVERIFY(knownExtensions(FileCategory::other).isEmpty());
    }

    void lookup_data() {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<FileCategory>("category");
        QTest::newRow("leading space") << " jpg" << FileCategory::images;
        QTest::newRow("no-break spaces") << "\u00a0JPG\u2003" << FileCategory::images;
        QTest::newRow("newline is kept") << "jpg\n" << FileCategory::other;
        QTest::newRow("inner space") << "j pg" << FileCategory::other;
        QTest::newRow("with dot") << ".jpg" << FileCategory::other;
        QTest::newRow("empty") << "" << FileCategory::other;
        QTest::newRow("Kelvin sign lowercases to k") << "\u212aDC" << FileCategory::images;
        QTest::newRow("non-ASCII") << "\u00e9t\u00e9" << FileCategory::other;
        // Extensions that fit two categories belong to the later one.
        QTest::newRow("pdf") << "pdf" << FileCategory::documents;
        QTest::newRow("ai") << "ai" << FileCategory::design;
        QTest::newRow("dmg") << "dmg" << FileCategory::applications;
    }

    void lookup() {
        QFETCH(QString, extension);
        QFETCH(FileCategory, category);
        QCOMPARE(categoryForExtension(extension), category);
    }

    void folderColoursWrapAround() {
        QCOMPARE(folderColorAt(0), FolderColor::blue);
        QCOMPARE(folderColorAt(12), FolderColor::blue);
        QCOMPARE(folderColorAt(13), FolderColor::green);
        QCOMPARE(folderColorAt(-1), FolderColor::cyan);
    }
};

QTEST_APPLESS_MAIN(CategoriesTest)
#include "CategoriesTest.moc"
