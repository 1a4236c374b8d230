#include "model/Records.h"
#include "model/FileCategory.h"

#include <QTest>

#include <vector>

using namespace tessarine;

namespace {

FolderInfo folder(const QString& name, qint64 totalSize, std::vector<FolderInfo> children = {}) {
    FolderInfo info;
    info.location = FolderPath(QStringLiteral("/r/") + name);
    info.name = name;
    info.totalSize = totalSize;
    info.childFolders = std::move(children);
    return info;
}

QStringList namesOf(const std::vector<const FolderInfo*>& folders) {
    QStringList names;
    for (const FolderInfo* info : folders)
        names.append(info->name);
    return names;
}

} // namespace

// The records, what they derive, and the category table they are filed by.
class RecordsTest : public QObject {
    Q_OBJECT

private slots:
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

    void lookup() {
        // Spaces of any kind are trimmed, a newline is not; the Kelvin sign lowercases to k; an
        // extension that fits two categories belongs to the later one.
        for (const auto& [extension, category] :
             {std::pair{u"\u00a0JPG\u2003", FileCategory::images},
              {u"jpg\n", FileCategory::other},
              {u"", FileCategory::other},
              {u"\u212aDC", FileCategory::images},
              {u"pdf", FileCategory::documents},
              {u"ai", FileCategory::design},
              {u"dmg", FileCategory::applications}})
            QCOMPARE(categoryForExtension(QString::fromUtf16(extension)), category);
    }

    void folderDerivedValues() {
        const FolderInfo tree =
            folder(QStringLiteral("root"), 100,
                   {folder(QStringLiteral("a"), 30,
                           {folder(QStringLiteral("a1"), 10), folder(QStringLiteral("a2"), 5)}),
                    folder(QStringLiteral("b"), 60)});
        QCOMPARE(tree.directFilesSize(), 10);
        QCOMPARE(tree.childFolders[0].directFilesSize(), 15);
        // Parents before children, siblings in list order.
        QCOMPARE(namesOf(tree.flattened()), QStringList({"root", "a", "a1", "a2", "b"}));
        QCOMPARE(tree.flattened().front(), &tree);
    }

    void deepChainIsSafe() {
        constexpr int levels = 10'000;
        auto root = std::make_unique<FolderInfo>(folder(QStringLiteral("0"), levels));
        FolderInfo* tip = root.get();
        for (int depth = 1; depth <= levels; ++depth) {
            FolderInfo child = folder(QString::number(depth), levels - depth);
            child.location = FolderPath(tip->location, child.name);
            tip->childFolders.push_back(std::move(child));
            tip = &tip->childFolders.back();
            tip->depth = depth;
        }
        const std::vector<const FolderInfo*> all = root->flattened();
        QCOMPARE(all.size(), std::size_t(levels + 1));
        QCOMPARE(all.back(), tip);
        QCOMPARE(root->directFilesSize(), 1);

        // Copying, comparing, reassigning and tearing the chain down must not exhaust the stack.
        FolderInfo copy = *root;
        QVERIFY(copy == *root);
        const std::vector<const FolderInfo*> copied = copy.flattened();
        QCOMPARE(copied.size(), all.size());
        QVERIFY(copied.back() != tip);
        QCOMPARE(copied.back()->name, tip->name);
        tip->name = QStringLiteral("changed");
        QVERIFY(copy != *root);
        copy = *root;
        QVERIFY(copy == *root);
        copy.childFolders = FolderInfoList();
        QVERIFY(copy != *root);
        root.reset();
    }

    // A path is spelled from the parts its folders share, with one "/" between parent and name.
    void folderPaths() {
        const FolderPath root(QStringLiteral("/"));
        const FolderPath top(root, QStringLiteral("a b"));
        const FolderPath inner(top, QStringLiteral("c"));
        QCOMPARE(root.toString(), "/");
        QCOMPARE(top.toString(), "/a b");
        QCOMPARE(inner.toString(), "/a b/c");
        QCOMPARE(FolderPath(QStringLiteral("/x/")).toString(), "/x/");
        QCOMPARE(FolderPath(FolderPath(QStringLiteral("/x/")), QStringLiteral("y")).toString(),
                 "/x/y");
        QCOMPARE(FolderPath().toString(), QString());
        QVERIFY(inner.extends(top) && !inner.extends(root));
        // Equal by spelling, however made.
        QVERIFY(inner == FolderPath(QStringLiteral("/a b/c")));
        QVERIFY(!FolderPath(QStringLiteral("/a b/c")).extends(top));
        QVERIFY(inner != FolderPath(top, QStringLiteral("d")));

        // Released from its tip, a very deep chain must let go of its parts without recursing.
        constexpr int levels = 300'000;
        auto tip = std::make_unique<FolderPath>(QStringLiteral("/deep"));
        for (int level = 0; level < levels; ++level)
            *tip = FolderPath(*tip, QStringLiteral("d"));
        QCOMPARE(tip->toString().size(), 5 + 2 * levels);
        tip.reset();
    }

    void formattedDuration() {
        AnalysisResult result;
        for (const auto& [seconds, text] : {std::pair{0.0, "0 ms"},
                                            {0.25, "250 ms"},
                                            {59.96, "60.0 seconds"},
                                            {60.0, "1m 0s"},
                                            {3725.0, "62m 5s"}}) {
            result.scanDuration = seconds;
            QCOMPARE(result.formattedDuration(), QString::fromUtf8(text));
        }
        // An import knows no duration: it is never shown as one.
        result.importSource.emplace().unknownFields = QStringList{QStringLiteral("scanDuration")};
        QCOMPARE(result.formattedDuration(), "—");
    }
};

QTEST_APPLESS_MAIN(RecordsTest)
#include "RecordsTest.moc"
