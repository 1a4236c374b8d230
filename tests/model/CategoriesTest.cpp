#include "model/FileCategory.h"
#include "model/FolderColor.h"
#include "model/InsightType.h"

#include <QTest>

#include <thread>
#include <vector>

using namespace tessarine;

namespace {

// Mentions every case, so a case added or moved fails here first.
constexpr std::pair<FileCategory, int> tableSizes[] = {
    {FileCategory::images, 53},       {FileCategory::videos, 32}, {FileCategory::audio, 42},
    {FileCategory::documents, 60},    {FileCategory::code, 94},   {FileCategory::archives, 29},
    {FileCategory::applications, 20}, {FileCategory::system, 41}, {FileCategory::data, 36},
    {FileCategory::fonts, 12},        {FileCategory::design, 42}, {FileCategory::other, 0},
};

} // namespace

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

    void extensionTable() {
        int total = 0;
        for (const auto& [category, size] : tableSizes) {
            const QStringList extensions = knownExtensions(category);
            QCOMPARE(extensions.size(), size);
            total += size;
            // Every key is reachable through the lookup, whatever its length or spelling.
            for (const QString& extension : extensions) {
                QCOMPARE(extension, extension.toLower().trimmed());
                QCOMPARE(categoryForExtension(extension), category);
                QCOMPARE(categoryForExtension(extension.toUpper()), category);
            }
        }
        QCOMPARE(total, 461);
    }

    void lookup_data() {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<FileCategory>("category");
        QTest::newRow("upper") << "JPG" << FileCategory::images;
        QTest::newRow("mixed") << "Jpg" << FileCategory::images;
        QTest::newRow("leading space") << " jpg" << FileCategory::images;
        QTest::newRow("trailing tab") << "jpg\t" << FileCategory::images;
        QTest::newRow("no-break spaces") << "\u00a0JPG\u2003" << FileCategory::images;
        QTest::newRow("newline is kept") << "jpg\n" << FileCategory::other;
        QTest::newRow("inner space") << "j pg" << FileCategory::other;
        QTest::newRow("with dot") << ".jpg" << FileCategory::other;
        QTest::newRow("empty") << "" << FileCategory::other;
        QTest::newRow("blank") << " \t " << FileCategory::other;
        QTest::newRow("Kelvin sign lowercases to k") << "\u212aDC" << FileCategory::images;
        QTest::newRow("non-ASCII") << "\u00e9t\u00e9" << FileCategory::other;
        QTest::newRow("long") << "xcplaygroundxcplayground" << FileCategory::other;
        QTest::newRow("cache") << "cache" << FileCategory::other;
        QTest::newRow("tmp") << "tmp" << FileCategory::other;
        QTest::newRow("temp") << "temp" << FileCategory::other;
        QTest::newRow("log") << "log" << FileCategory::system;
        QTest::newRow("makefile") << "Makefile" << FileCategory::system;
        // Extensions that fit two categories belong to the later one.
        QTest::newRow("pdf") << "pdf" << FileCategory::documents;
        QTest::newRow("ai") << "ai" << FileCategory::design;
        QTest::newRow("ts") << "ts" << FileCategory::code;
        QTest::newRow("key") << "key" << FileCategory::system;
        QTest::newRow("sql") << "sql" << FileCategory::data;
        QTest::newRow("dmg") << "dmg" << FileCategory::applications;
        QTest::newRow("pkg") << "pkg" << FileCategory::applications;
        QTest::newRow("apk") << "apk" << FileCategory::applications;
        QTest::newRow("ipa") << "ipa" << FileCategory::applications;
        QTest::newRow("msi") << "msi" << FileCategory::applications;
    }

    void lookup() {
        QFETCH(QString, extension);
        QFETCH(FileCategory, category);
        QCOMPARE(categoryForExtension(extension), category);
    }

    void categoryTexts() {
        const QStringList names = {"Images", "Videos",   "Audio",        "Documents",
                                   "Code",   "Archives", "Applications", "System",
                                   "Data",   "Fonts",    "3D & Design",  "Other"};
        QCOMPARE(allFileCategories().size(), std::size_t(names.size()));
        for (std::size_t i = 0; i < allFileCategories().size(); ++i) {
            const FileCategory category = allFileCategories()[i];
            QCOMPARE(int(category), int(i));
            QCOMPARE(rawValue(category), names[qsizetype(i)]);
            QCOMPARE(fromRawValue<FileCategory>(names[qsizetype(i)]), category);
        }
        QCOMPARE(fromRawValue<FileCategory>(u"images"), std::nullopt);
        QCOMPARE(fromRawValue<FileCategory>(u"Images "), std::nullopt);
        QCOMPARE(fromRawValue<FileCategory>(u""), std::nullopt);
        QCOMPARE(iconName(FileCategory::code), "chevron.left.forwardslash.chevron.right");
        QCOMPARE(iconName(FileCategory::other), "questionmark.folder");
        QCOMPARE(colorName(FileCategory::images), "pink");
        QCOMPARE(colorName(FileCategory::design), "mint");
        QCOMPARE(colorName(FileCategory::other), "secondary");
    }

    void folderColors() {
        const QStringList names = {"blue", "green",  "teal",  "orange", "pink", "purple",
                                   "red",  "yellow", "brown", "indigo", "mint", "cyan"};
        for (std::size_t i = 0; i < allFolderColors().size(); ++i) {
            QCOMPARE(rawValue(allFolderColors()[i]), names[qsizetype(i)]);
            QCOMPARE(fromRawValue<FolderColor>(names[qsizetype(i)]), allFolderColors()[i]);
        }
        QCOMPARE(folderColorAt(0), FolderColor::blue);
        QCOMPARE(folderColorAt(12), FolderColor::blue);
        QCOMPARE(folderColorAt(13), FolderColor::green);
        QCOMPARE(folderColorAt(-1), FolderColor::cyan);
        QCOMPARE(fromRawValue<FolderColor>(u"Blue"), std::nullopt);
    }

    void insightTypes() {
        const QStringList names = {"Node Modules", "Duplicate Names", "Old Files",
                                   "Large Cache",  "Empty Folders",   "Hidden Files"};
        for (std::size_t i = 0; i < allInsightTypes().size(); ++i) {
            QCOMPARE(rawValue(allInsightTypes()[i]), names[qsizetype(i)]);
            QCOMPARE(fromRawValue<InsightType>(names[qsizetype(i)]), allInsightTypes()[i]);
        }
        QCOMPARE(fromRawValue<InsightType>(u"node modules"), std::nullopt);
    }
};

QTEST_APPLESS_MAIN(CategoriesTest)
#include "CategoriesTest.moc"
