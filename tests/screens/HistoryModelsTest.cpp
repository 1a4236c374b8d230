#include "DashboardResult.h"
#include "SampleResults.h"
#include "app/ScanHistoryModel.h"
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

AnalysisResult result(const QString& path, int day, qint64 size = 1000) {
    return testing::plainResult(path, day0.addDays(day), size);
}

ScanSummary scan(const QString& path, int day, qint64 size = 1000) {
    return ScanSummary::of(result(path, day, size));
}

CategoryStats category(FileCategory which, qint64 size) {
    CategoryStats stats;
    stats.category = which;
    stats.totalSize = size;
    return stats;
}

// The history as the store gives it: newest first.
QList<ScanSummary> newestFirst(QList<ScanSummary> scans) {
    std::stable_sort(scans.begin(), scans.end(),
                     [](const auto& a, const auto& b) { return a.scanDate > b.scanDate; });
    return scans;
}

QStringList names(const QList<ScanSummary>& scans) {
    QStringList list;
    for (const ScanSummary& result : scans)
        list.append(result.rootName);
    return list;
}

} // namespace

class HistoryModelsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    // Names as the locale sorts them: code points would put "Émile" after "zoe". A search finds
    // a name in any case, or a folder in the path; newest first is the order of its rows.
    void ordersAndSearches() {
        const QList<ScanSummary> history = newestFirst({
            scan("/home/projects/Adam", 0, 300),
            scan("/home/emma", 1, 900),
            scan("/data/Émile", 2, 100),
            scan("/home/projects/zoe", 3, 500),
        });
        for (const auto& [search, order, expected] :
             {std::tuple{"", HistoryOrder::DateAscending,
                         QStringList{"Adam", "emma", "Émile", "zoe"}},
              {"", HistoryOrder::SizeDescending, {"emma", "zoe", "Adam", "Émile"}},
              {"", HistoryOrder::NameAscending, {"Adam", "Émile", "emma", "zoe"}},
              {"EMM", HistoryOrder::DateDescending, {"emma"}},
              {"projects", HistoryOrder::DateDescending, {"zoe", "Adam"}}})
            QCOMPARE(names(filteredHistory(history, QString::fromUtf8(search), order)), expected);
    }

    void differencesShowSignArrowAndColour() {
        const struct {
            qint64 before, after;
            const char *text, *symbol, *color;
        } rows[] = {{1'000'000, 2'000'000, "+1 MB", "arrow.up", "red"},
                    {2'000'000, 1'000'000, "-1 MB", "arrow.down", "green"},
                    {5, 5, "—", "", "secondary"}};
        for (const auto& row : rows) {
            AnalysisResult earlier = result("/a", 0, row.before),
                           later = result("/a", 1, row.after);
            earlier.fileCount = 1200;
            later.fileCount = 1000;
            later.maxDepth = 3;
            const ScanComparison comparison = compareScans(later, earlier);
            const ChangeRow& size = comparison.totals.at(0);
            QCOMPARE(size.changeText, QString::fromUtf8(row.text));
            QCOMPARE(size.symbol, QString::fromLatin1(row.symbol));
            QCOMPARE(size.color, QString::fromLatin1(row.color));
            QCOMPARE(comparison.totals.at(1).changeText, QString("-200"));
            QCOMPARE(comparison.totals.at(2).changeText, QString("—"));
            QCOMPARE(comparison.totals.at(3).changeText, QString("+3"));
        }
    }

    void listsChangedCategoriesAndFiles() {
        AnalysisResult before = result("/a", 0), after = result("/a", 1);
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
        QStringList categories;
        for (const ChangeRow& row : comparison.categories)
            categories << row.title;
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
        QList<ScanSummary> history =
            newestFirst({scan("/a", 0), scan("/b", 1), scan("/c", 2), scan("/b", 3, 4000)});
        QVERIFY(historyHasTrend(history));
        const TrendSeries trend = storageTrend(history);
        QCOMPARE(trend.folderPath, QString("/b"));
        QCOMPARE(trend.sizes, (std::vector<qint64>{1000, 4000}));
        // A second qualifying folder wins once it holds the most recent scan.
        history = newestFirst(history + QList{scan("/a", 4)});
        QCOMPARE(storageTrend(history).folderPath, QString("/a"));
    }

    // Rows are removed, inserted and updated in place while the common rows keep their order, and
    // replaced in place when they do not; the list never starts over, which would make a view
    // build all its delegates again. Checked against the model's contract at every step, over
    // random changes.
    void historyFollowsRandomChangesRowByRow() {
        QList<ScanSummary> pool;
        for (int i = 0; i < 40; ++i)
            pool.append(scan(QStringLiteral("/s/%1").arg(i), i));
        ScanHistoryModel history;
        QAbstractItemModelTester tester(&history,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&history, &QAbstractItemModel::modelReset);
        QRandomGenerator random(7);
        QList<ScanSummary> current;
        for (int step = 0; step < 300; ++step) {
            QList<ScanSummary> latest;
            for (const ScanSummary& summary : std::as_const(current))
                if (random.bounded(6) != 0)
                    latest.append(summary);
            for (int added = random.bounded(4); added > 0; --added) {
                ScanSummary summary = pool.at(random.bounded(int(pool.size())));
                const auto same = [&](const ScanSummary& other) { return other.id == summary.id; };
                if (std::none_of(current.begin(), current.end(), same) &&
                    std::none_of(latest.begin(), latest.end(), same))
                    latest.insert(random.bounded(int(latest.size()) + 1), summary);
            }
            if (!latest.isEmpty() && random.bounded(5) == 0)
                latest[random.bounded(int(latest.size()))].totalSize += 1;
            if (latest.size() > 1 && random.bounded(10) == 0)
                latest.swapItemsAt(0, latest.size() - 1);
            history.sync(latest);
            QCOMPARE(history.results(), latest);
            current = latest;
        }
        QCOMPARE(resets.count(), 0);
    }
};

QTEST_GUILESS_MAIN(HistoryModelsTest)
#include "HistoryModelsTest.moc"
