#include "DashboardResult.h"
#include "SampleResults.h"
#include "screens/history/HistoryListModel.h"
#include "screens/history/ScanComparison.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using namespace tessarine;

namespace {

const QDateTime day0(QDate(2025, 1, 1), QTime(9, 0), Qt::UTC);

AnalysisResult scan(const QString& path, int day, qint64 size = 1000) {
    return testing::plainResult(path, day0.addDays(day), size);
}

CategoryStats category(FileCategory which, qint64 size) {
    CategoryStats stats;
    stats.category = which;
    stats.totalSize = size;
    return stats;
}

// The history as the store gives it: newest first.
QList<AnalysisResult> newestFirst(QList<AnalysisResult> scans) {
    std::stable_sort(scans.begin(), scans.end(),
                     [](const auto& a, const auto& b) { return a.scanDate > b.scanDate; });
    return scans;
}

QStringList names(const QList<AnalysisResult>& scans) {
    QStringList list;
    for (const AnalysisResult& result : scans)
        list.append(result.rootName);
    return list;
}

} // namespace

class HistoryModelsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void ordersAndSearches_data() {
        QTest::addColumn<QString>("search");
        QTest::addColumn<int>("order");
        QTest::addColumn<QStringList>("expected");
        // Newest first is the order of the rows that search.
        QTest::newRow("oldest") << "" << int(HistoryOrder::DateAscending)
                                << QStringList{"Adam", "emma", "Émile", "zoe"};
        QTest::newRow("largest") << "" << int(HistoryOrder::SizeDescending)
                                 << QStringList{"emma", "zoe", "Adam", "Émile"};
        // Code points would put "Émile" after "zoe" and "emma" after "Adam" only by accident.
        QTest::newRow("names as the locale sorts") << "" << int(HistoryOrder::NameAscending)
                                                   << QStringList{"Adam", "Émile", "emma", "zoe"};
        QTest::newRow("name ignores case")
            << "EMM" << int(HistoryOrder::DateDescending) << QStringList{"emma"};
        QTest::newRow("path finds what the name does not")
            << "projects" << int(HistoryOrder::DateDescending) << QStringList{"zoe", "Adam"};
    }
    void ordersAndSearches() {
        QFETCH(QString, search);
        QFETCH(int, order);
        QFETCH(QStringList, expected);
        const QList<AnalysisResult> history = newestFirst({
            scan("/home/projects/Adam", 0, 300),
            scan("/home/emma", 1, 900),
            scan("/data/Émile", 2, 100),
            scan("/home/projects/zoe", 3, 500),
        });
        QCOMPARE(names(filteredHistory(history, search, HistorySortOrder(order))), expected);
    }

    void differencesShowSignArrowAndColour_data() {
        QTest::addColumn<qint64>("before");
        QTest::addColumn<qint64>("after");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<QString>("color");
        const auto row = [](const char* tag, qint64 before, qint64 after, const char* text,
                            const char* symbol, const char* color) {
            QTest::newRow(tag) << before << after << QString::fromUtf8(text)
                               << QString::fromLatin1(symbol) << QString::fromLatin1(color);
        };
        row("grew", 1'000'000, 2'000'000, "+1 MB", "arrow.up", "red");
        row("shrank", 2'000'000, 1'000'000, "-1 MB", "arrow.down", "green");
        row("same", 5, 5, "—", "", "secondary");
    }
    void differencesShowSignArrowAndColour() {
        QFETCH(qint64, before);
        QFETCH(qint64, after);
        QFETCH(QString, text);
        QFETCH(QString, symbol);
        QFETCH(QString, color);
        AnalysisResult earlier = scan("/a", 0, before), later = scan("/a", 1, after);
        earlier.fileCount = 1200;
        later.fileCount = 1000;
        later.maxDepth = 3;
        const ScanComparison comparison = compareScans(later, earlier);
        const ChangeRow& size = comparison.totals.at(0);
        QCOMPARE(size.changeText, text);
        QCOMPARE(size.symbol, symbol);
        QCOMPARE(size.color, color);
        QCOMPARE(comparison.totals.at(1).changeText, QString("-200"));
        QCOMPARE(comparison.totals.at(2).changeText, QString("—"));
        QCOMPARE(comparison.totals.at(3).changeText, QString("+3"));
    }

    void listsChangedCategoriesAndFiles() {
        AnalysisResult before = scan("/a", 0), after = scan("/a", 1);
        before.categoryBreakdown = {category(FileCategory::images, 100),
                                    category(FileCategory::videos, 500),
                                    category(FileCategory::code, 70)};
        after.categoryBreakdown = {category(FileCategory::images, 150),
                                   category(FileCategory::code, 70),
                                   category(FileCategory::audio, 10)};
        const FileInfo kept =
            testing::sampleFile("/a/kept.txt", 900, "txt", FileCategory::documents);
        before.largestFiles = {kept,
                               testing::sampleFile("/a/old.mov", 500, "mov", FileCategory::videos)};
        after.largestFiles = {kept,
                              testing::sampleFile("/a/new.png", 50, "png", FileCategory::images)};

        const ScanComparison comparison = compareScans(before, after);
        QStringList categories, changes;
        for (const ChangeRow& row : comparison.categories) {
            categories << row.title;
            changes << row.changeText;
        }
        QCOMPARE(categories, (QStringList{"Videos", "Images", "Audio"}));
        QCOMPARE(comparison.categories.front().color, QString("green"));
        QCOMPARE(comparison.files.size(), std::size_t(2));
        QCOMPARE(comparison.files.at(0).title, QString("old.mov"));
        QCOMPARE(comparison.files.at(0).symbol, QString("arrow.down"));
        QCOMPARE(comparison.files.at(1).title, QString("new.png"));
        QCOMPARE(comparison.files.at(1).changeText, QString("+50 bytes"));
        QCOMPARE(comparison.optionsNote, QString());

        // Scans that counted differently say so, whichever of them counted more.
        after.scanOptions = {.includeHidden = true, .diskUsage = true};
        QCOMPARE(compareScans(after, before).optionsNote,
                 QString("Scanned with different options (Before: none; After: hidden items "
                         "included, disk usage), so the figures differ for that reason too."));
    }

    void trendNeedsAFolderScannedTwice() {
        // Without a folder scanned twice there is no trend: the history view's Quick test shows it.
        QList<AnalysisResult> history =
            newestFirst({scan("/a", 0), scan("/b", 1), scan("/c", 2), scan("/b", 3, 4000)});
        QVERIFY(historyHasTrend(history));
        const TrendSeries trend = storageTrend(history);
        QCOMPARE(trend.folderPath, QString("/b"));
        QCOMPARE(trend.sizes, (std::vector<qint64>{1000, 4000}));
        // A second qualifying folder wins once it holds the most recent scan.
        history = newestFirst(history + QList{scan("/a", 4)});
        QCOMPARE(storageTrend(history).folderPath, QString("/a"));
    }

    void syncFollowsAnyNewList() {
        // Random edits of the list the model is synced to: inserted, removed, moved and changed
        // records. The model must end equal to its target every round, keep the rows in place (no
        // reset) unless records moved, and tell its views only what the item model rules allow.
        constexpr quint32 seed = 20;
        QRandomGenerator random(seed);
        ScanHistoryModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        QList<AnalysisResult> target;
        int made = 0;
        for (int round = 0; round < 200; ++round) {
            bool moved = false;
            for (int edits = random.bounded(1, 6); edits > 0; --edits) {
                const int at = random.bounded(int(target.size()) + 1);
                const bool some = at < target.size();
                switch (random.bounded(5)) {
                case 0:
                case 1: {
                    AnalysisResult added = scan(QStringLiteral("/%1").arg(made), made);
                    added.id = QUuid(uint(++made), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
                    target.insert(at, added);
                    break;
                }
                case 2:
                    if (some)
                        target.removeAt(at);
                    break;
                case 3:
                    if (some && target.size() > 1) {
                        const int to = random.bounded(int(target.size()));
                        moved = moved || to != at;
                        target.move(at, to);
                    }
                    break;
                case 4:
                    if (some)
                        target[at].totalSize += 1 + random.bounded(1000);
                    break;
                }
            }
            resets.clear();
            model.sync(target);
            const QString where = QStringLiteral("seed %1, round %2").arg(seed).arg(round);
            QVERIFY2(model.results() == target, qPrintable(where));
            QVERIFY2(moved || resets.isEmpty(), qPrintable(where));
            if (QTest::currentTestFailed())
                return;
        }
    }
};

QTEST_GUILESS_MAIN(HistoryModelsTest)
#include "HistoryModelsTest.moc"
