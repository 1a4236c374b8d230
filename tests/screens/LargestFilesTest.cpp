#include "RecordedDesktop.h"
#include "SampleResults.h"
#include "model/Json.h"
#include "screens/dashboard/FileActions.h"
#include "screens/dashboard/LargestFilesRows.h"
#include "screens/dashboard/ResultExport.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
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
        QAbstractItemModelTester tester(&rows,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        rows.setResult(resultWithFiles());
        // Largest first; equal sizes keep the result's order.
        QCOMPARE(names(rows), QStringList({"b.JPG", "a.txt", "c9.md", "c10"}));
        QCOMPARE(rows.index(3, LargestFilesTableModel::TypeColumn)
                     .data(LargestFilesTableModel::TypeTextRole),
                 "—");

        rows.select(1);
        rows.select(3, Qt::ControlModifier);
        QCOMPARE(rows.selectedPaths(), QStringList({"/r/Notes/a.txt", "/r/Ünïcode/c10"}));

        rows.sortBy(LargestFilesTableModel::NameColumn);
        QCOMPARE(names(rows), QStringList({"a.txt", "b.JPG", "c9.md", "c10"}));
        rows.sortBy(LargestFilesTableModel::NameColumn);
        QCOMPARE(names(rows), QStringList({"c10", "c9.md", "b.JPG", "a.txt"}));
        rows.sortBy(LargestFilesTableModel::ModifiedColumn);
        QCOMPARE(names(rows).last(), "b.JPG");
        rows.sortBy(LargestFilesTableModel::TypeColumn); // not sortable: nothing changes
        QCOMPARE(rows.sortColumn(), int(LargestFilesTableModel::ModifiedColumn));

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

    void shiftSelectsARangeFromTheLastClick_data() {
        QTest::addColumn<QList<int>>("clicks");
        QTest::addColumn<QList<int>>("modifiers");
        QTest::addColumn<QStringList>("selected");
        QTest::newRow("plain click replaces") << QList{0, 2} << QList{0, 0} << QStringList{"c9.md"};
        QTest::newRow("shift range") << QList{1, 3} << QList{0, int(Qt::ShiftModifier)}
                                     << QStringList{"a.txt", "c9.md", "c10"};
        QTest::newRow("shift pivots on the anchor")
            << QList{2, 3, 0} << QList{0, int(Qt::ShiftModifier), int(Qt::ShiftModifier)}
            << QStringList{"b.JPG", "a.txt", "c9.md"};
        QTest::newRow("ctrl toggles")
            << QList{0, 2, 0} << QList{0, int(Qt::ControlModifier), int(Qt::ControlModifier)}
            << QStringList{"c9.md"};
    }

    void shiftSelectsARangeFromTheLastClick() {
        QFETCH(QList<int>, clicks);
        QFETCH(QList<int>, modifiers);
        LargestFilesRows rows;
        rows.setResult(resultWithFiles());
        for (qsizetype i = 0; i < clicks.size(); ++i)
            rows.select(clicks[i], modifiers[i]);
        QStringList selected;
        for (const QString& path : rows.selectedPaths())
            selected.append(path.section('/', -1));
        QTEST(selected, "selected");
    }

    // What the table's actions do for files that exist, the dashboard's Quick test shows.
    void actionsReachTheDesktopOnlyForFilesThatExist() {
        QTemporaryDir folder;
        RecordedDesktop desktop;
        FileActions::setServices(&desktop);
        FileActions actions;
        QVERIFY(!actions.reveal(folder.filePath("gone.txt")));
        QVERIFY(!actions.open(folder.filePath("gone.txt")));
        actions.copyPaths({"/a b", "/c\nd"});
        actions.copyPaths({});
        FileActions::setServices(nullptr);
        QCOMPARE(desktop.requests, QStringList({"copy /a b\n/c\nd"}));
    }

    // CSV under a typed name: RealWindowTest.
    void exportWritesTheHistoryBytes() {
        QTemporaryDir folder;
        const AnalysisResult result = testing::sampleResult();
        ResultExport exporter;

        const QString json = folder.filePath("out.json");
        QCOMPARE(exporter.write(result, ResultExport::Json, QUrl::fromLocalFile(json)), QString());
        QFile written(json);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), tessarine::json::encode(result));
    }
};

QTEST_GUILESS_MAIN(LargestFilesTest)

#include "LargestFilesTest.moc"
