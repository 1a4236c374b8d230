#include "storage/FolderChanges.h"
#include "storage/FolderSizesCodec.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace tessarine;

namespace {

// A table from (path below the root, size) pairs, parents first; "" is the root.
FolderSizes table(std::initializer_list<std::pair<const char*, qint64>> folders,
                  qint64 cutoff = 0) {
    FolderSizes sizes;
    sizes.cutoff = cutoff;
    QHash<QByteArray, qint32> rows;
    for (const auto& [path, size] : folders) {
        const QByteArray below(path);
        const qsizetype slash = below.lastIndexOf('/');
        const qint32 parent = below.isEmpty() ? -1 : rows.value(slash < 0 ? "" : below.left(slash));
        rows.insert(below, sizes.add(parent, below.mid(slash + 1), size, 1));
    }
    return sizes;
}

using Listed = std::tuple<QString, std::optional<qint64>, std::optional<qint64>, qint64>;

QList<Listed> listed(const FolderComparison& comparison) {
    QList<Listed> rows;
    for (const FolderChange& change : comparison.changes)
        rows.append({change.path, change.before, change.after, change.change});
    return rows;
}

} // namespace

class FolderSizesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    // Names as the disk has them (not text), sizes up to the largest a sum can reach; and not one
    // changed, missing or extra byte goes unnoticed.
    void readsBackExactlyAndRefusesAnyDamage() {
        FolderSizes sizes = table({{"", std::numeric_limits<qint64>::max()},
                                   {"new\nline", 5},
                                   {"new\nline/bad-\xff\xfe", 4},
                                   {"quote\"", 300}},
                                  77);
        const QByteArray bytes = encodeFolderSizes(sizes);
        QCOMPARE(decodeFolderSizes(bytes), sizes);

        for (qsizetype at = 0; at < bytes.size(); ++at) {
            QByteArray damaged = bytes;
            damaged[at] = char(damaged[at] ^ 0x10);
            QVERIFY2(!decodeFolderSizes(damaged), qPrintable(QString::number(at)));
            QVERIFY(!decodeFolderSizes(bytes.left(at)));
        }
        QVERIFY(!decodeFolderSizes(bytes + '\0'));
    }

    void listsWhatGrewCameShrankAndWent() {
        const FolderSizes before = table({{"", 1000},
                                          {"a", 20},
                                          {"a/a1", 10},
                                          {"a/a2", 10},
                                          {"b", 100},
                                          {"b/b1", 100},
                                          {"c", 50},
                                          {"c/c1", 50},
                                          {"d", 5},
                                          {"d/d1", 5}});
        const FolderSizes after = table({{"", 1107},
                                         {"a", 40},
                                         {"a/a1", 20},
                                         {"a/a2", 20},
                                         {"b", 200},
                                         {"b/b1", 200},
                                         {"d", 12},
                                         {"d/d1", 5},
                                         {"e", 30}});

        const FolderComparison comparison = compareFolders("/r", before, "/r", after);

        QCOMPARE(comparison.outcome, FolderComparison::Outcome::compared);
        // b grew only through b1, so only b1 is named; a through two folders, d by its own files;
        // c went and e came whole, without their contents.
        const QList<Listed> expected{{"/r/b/b1", 100, 200, 100},
                                     {"/r/c", 50, std::nullopt, -50},
                                     {"/r/e", std::nullopt, 30, 30},
                                     {"/r/a", 20, 40, 20},
                                     {"/r/a/a1", 10, 20, 10},
                                     {"/r/a/a2", 10, 20, 10},
                                     {"/r/d", 5, 12, 7}};
        QCOMPARE(listed(comparison), expected);
        QCOMPARE(unknownFolderSizeText(comparison.cutoff), "—");
        QCOMPARE(folderComparisonNote(comparison), QString());
    }

    // Below the larger of the two cut-offs neither scan's figure counts: a folder the other scan
    // would have left out too is not reported as gone.
    void figuresUnderEitherCutoffAreUnknown() {
        const FolderSizes before = table({{"", 5000}, {"kept", 3000}, {"small", 30}, {"tiny", 5}});
        const FolderSizes after = table({{"", 5000}, {"kept", 3100}, {"small", 900}}, 40);

        const FolderComparison comparison = compareFolders("/", before, "/", after);

        const QList<Listed> expected{{"/small", std::nullopt, 900, 900},
                                     {"/kept", 3000, 3100, 100}};
        QCOMPARE(listed(comparison), expected);
        QCOMPARE(unknownFolderSizeText(comparison.cutoff), "under 40 bytes");
    }
};

QTEST_GUILESS_MAIN(FolderSizesTest)
#include "FolderSizesTest.moc"
