#include "charts/NestedTreemap.h"

#include <QTest>

using namespace tessarine;

namespace {

FolderInfo folder(const QString& name, qint64 size, qint64 files = 1,
                  FolderInfoList children = {}) {
    FolderInfo info;
    info.location = FolderPath("/root/" + name);
    info.name = name;
    info.totalSize = size;
    info.fileCount = files;
    info.childFolders = std::move(children);
    return info;
}

// A folder whose sub-folders have the given sizes, plus directFiles bytes of its own.
FolderInfo parentOf(const QList<qint64>& sizes, qint64 directFiles = 0) {
    FolderInfoList children;
    qint64 total = directFiles;
    for (qsizetype i = 0; i < sizes.size(); ++i) {
        children.push_back(folder(QString::number(i), sizes[i]));
        total += sizes[i];
    }
    return folder("parent", total, sizes.size() + 3, std::move(children));
}

QStringList names(const TreemapLevel& level) {
    QStringList list;
    for (const TreemapItem& item : level.items)
        list << item.folder->name;
    return list;
}

} // namespace

class FolderTreemapLayoutTest : public QObject {
    Q_OBJECT

private slots:
    void workedExample() {
        const FolderInfo parent = parentOf({10, 60, 30});
        const TreemapLevel level = buildTreemapItems(parent, QRectF(0, 0, 300, 100), 0);
        QCOMPARE(names(level), (QStringList{"1", "2", "0"}));
        // 60 alone is the first column, sized on the whole area; 30 and 10 share the free 120 x 100
        // as a second column, which the strip rule then sizes on the whole width again.
        QCOMPARE(level.items[0].rect, QRectF(0, 0, 180, 100));
        QCOMPARE(level.items[1].rect, QRectF(180, 0, 120, 75));
        QCOMPARE(level.items[2].rect, QRectF(180, 75, 120, 25));
        QVERIFY(!level.files);
    }

    void filesItemAndColours() {
        QList<qint64> sizes;
        for (int i = 0; i < 11; ++i)
            sizes << 100 - i;
        const FolderInfo parent = parentOf(sizes, 95);
        const TreemapLevel level = buildTreemapItems(parent, QRectF(0, 0, 400, 300), 0);
        QCOMPARE(level.items.size(), 12u);
        QVERIFY(level.files);
        QCOMPARE(level.files->totalSize, 95);
        QCOMPARE(level.files->fileCount, 3); // the parent's 14 files less its children's 11
        QCOMPARE(level.files->depth, parent.depth + 1);

        QList<qint64> colors;
        for (const TreemapItem& item : level.items)
            colors << item.colorIndex;
        // Files (95) sorts among the folders, in cyan, without taking a colour step; the 11th
        // folder starts the ten-colour cycle again.
        QCOMPARE(colors, (QList<qint64>{0, 1, 2, 3, 4, 5, 11, 6, 7, 8, 9, 0}));
        QVERIFY(level.items[6].isFiles);
    }

    void edges_data() {
        QTest::addColumn<QList<qint64>>("sizes");
        QTest::addColumn<qint64>("directFiles");
        QTest::addColumn<int>("items");
        QTest::newRow("empty folders") << QList<qint64>{0, 0} << qint64(0) << 0;
        QTest::newRow("leaf") << QList<qint64>{} << qint64(40) << 1;
        QTest::newRow("tiny beside huge") << QList<qint64>{1'000'000'000, 1} << qint64(0) << 2;
        QTest::newRow("zero beside some") << QList<qint64>{10, 0, 0} << qint64(0) << 3;
    }
    void edges() {
        QFETCH(QList<qint64>, sizes);
        QFETCH(qint64, directFiles);
        const FolderInfo parent = parentOf(sizes, directFiles);
        const QRectF bounds(0, 0, 300, 200);
        const TreemapLevel level = buildTreemapItems(parent, bounds, 4);
        QTEST(int(level.items.size()), "items");
        // Along its strip every item keeps 2 points; across it a strip may be thinner.
        for (const TreemapItem& item : level.items) {
            QVERIFY(qIsFinite(item.rect.width()) && qIsFinite(item.rect.height()));
            QVERIFY(item.rect.width() >= 2 || item.rect.height() >= 2);
            QVERIFY(bounds.contains(item.rect.topLeft()));
        }
        // A leaf stands for itself, in the level's base colour.
        if (sizes.isEmpty()) {
            QCOMPARE(level.items[0].folder, &parent);
            QCOMPARE(level.items[0].rect, bounds);
            QCOMPARE(level.items[0].colorIndex, 4);
        }
    }

    void nestingStopsAtTheThirdLevel() {
        // Every folder has two sub-folders four levels down: only levels 0 to 2 are laid out, and
        // only levels 0 and 1 nest.
        FolderInfo leafParent = parentOf({50, 50});
        FolderInfo level2 = folder("l2", 200, 4, {leafParent, leafParent});
        FolderInfo level1 = folder("l1", 400, 8, {level2, level2});
        const FolderInfo root = folder("root", 800, 16, {level1, level1});
        const NestedTreemap treemap = layoutNestedTreemap(root, QRectF(0, 0, 800, 600));

        QList<int> perLevel(3, 0);
        for (const NestedTreemapCell& cell : treemap.cells) {
            ++perLevel[cell.level];
            QCOMPARE(cell.nests, cell.level < 2);
            if (cell.parent >= 0) {
                const NestedTreemapCell& parent = treemap.cells[cell.parent];
                QCOMPARE(parent.level, cell.level - 1);
                QVERIFY(parent.item.rect.contains(cell.item.rect));
                QVERIFY(cell.parent < &cell - treemap.cells.data());
            }
        }
        QCOMPARE(perLevel, (QList<int>{2, 4, 8}));
        // A nested level continues its parent's colour.
        QCOMPARE(treemap.cells[2].item.colorIndex,
                 treemap.cells[treemap.cells[2].parent].item.colorIndex + 1);
    }

    void nestingCondition() {
        const FolderInfo withChildren = parentOf({1});
        const FolderInfo leaf = folder("leaf", 1);
        QVERIFY(nestsContents({&withChildren, QRectF(0, 0, 61, 51), false, 0}, 1, 3));
        QVERIFY(!nestsContents({&withChildren, QRectF(0, 0, 60, 200), false, 0}, 0, 3));
        QVERIFY(!nestsContents({&withChildren, QRectF(0, 0, 200, 50), false, 0}, 0, 3));
        QVERIFY(!nestsContents({&leaf, QRectF(0, 0, 200, 200), false, 0}, 0, 3));
    }
};

QTEST_GUILESS_MAIN(FolderTreemapLayoutTest)
#include "FolderTreemapLayoutTest.moc"
