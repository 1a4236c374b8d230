#include "SampleResults.h"
#include "screens/dashboard/LargestFilesRows.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QTest>

using namespace tessarine;
using testing::sampleFile;

namespace {

QStringList names(const LargestFilesRows& rows) {
    QStringList shown;
    for (int row = 0; row < rows.rowCount(); ++row)
        shown.append(rows.index(row, 0).data(LargestFilesTableModel::NameRole).toString());
    return shown;
}

AnalysisResult resultWithFiles() {
    AnalysisResult result;
    result.rootName = QStringLiteral("Documents");
    result.largestFiles = {
        sampleFile("/r/Photos/b.JPG", 300, "jpg", FileCategory::images),
        sampleFile("/r/Notes/a.txt", 300, "txt", FileCategory::documents),
        sampleFile("/r/Ünïcode/c10", 100, "", FileCategory::other),
        sampleFile("/r/Notes/c9.md", 200, "md", FileCategory::documents),
    };
    result.largestFiles[0].modificationDate = QDateTime(QDate(2020, 1, 1), QTime(), Qt::UTC);
    return result;
}

} // namespace

class LargestFilesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void searchAndSortKeepTheSelection() {
        LargestFilesRows rows;
        QAbstractItemModelTester tester(&rows);
        rows.setResult(resultWithFiles());
        // Largest first; equal sizes keep the result's order.
        QCOMPARE(names(rows), QStringList({"b.JPG", "a.txt", "c9.md", "c10"}));

        rows.select(1);
        rows.select(3, Qt::ControlModifier);
        QCOMPARE(rows.selectedPaths(), QStringList({"/r/Notes/a.txt", "/r/Ünïcode/c10"}));

        rows.sortBy(LargestFilesTableModel::NameColumn);
        QCOMPARE(names(rows), QStringList({"a.txt", "b.JPG", "c9.md", "c10"}));
        rows.sortBy(LargestFilesTableModel::NameColumn);
        QCOMPARE(names(rows), QStringList({"c10", "c9.md", "b.JPG", "a.txt"}));
        rows.sortBy(LargestFilesTableModel::ModifiedColumn);
        QCOMPARE(names(rows).last(), "b.JPG");

        // By extension (any case), by a folder inside the path, by a name; the selection stays.
        for (const auto& [text, expected] : {std::pair{"jpg", QStringList{"b.JPG"}},
                                             {"notes", {"a.txt", "c9.md"}},
                                             {"ÜNÏ", {"c10"}},
                                             {"zzz", {}}}) {
            rows.setSearchText(text);
            QStringList shown = names(rows);
            shown.sort();
            QCOMPARE(shown, expected);
        }
        QCOMPARE(rows.selectedCount(), 2);
        rows.setSearchText({});
        QCOMPARE(rows.rowCount(), 4);
        QCOMPARE(rows.fileCount(), 4);
    }

    void shiftSelectsARangeFromTheLastClick() {
        constexpr int shift = Qt::ShiftModifier, ctrl = Qt::ControlModifier;
        // Clicks as (row, modifiers): a plain click replaces, Shift takes the range from the last
        // plain click, Ctrl toggles.
        for (const auto& [clicks, selected] :
             {std::pair{QList<std::pair<int, int>>{{0, 0}, {2, 0}}, QStringList{"c9.md"}},
              {{{1, 0}, {3, shift}}, {"a.txt", "c9.md", "c10"}},
              {{{2, 0}, {3, shift}, {0, shift}}, {"b.JPG", "a.txt", "c9.md"}},
              {{{0, 0}, {2, ctrl}, {0, ctrl}}, {"c9.md"}}}) {
            LargestFilesRows rows;
            rows.setResult(resultWithFiles());
            for (const auto& [row, modifiers] : clicks)
                rows.select(row, modifiers);
            QStringList shown;
            for (const QString& path : rows.selectedPaths())
                shown.append(path.section('/', -1));
            QCOMPARE(shown, selected);
        }
    }
};

QTEST_GUILESS_MAIN(LargestFilesTest)

#include "LargestFilesTest.moc"
