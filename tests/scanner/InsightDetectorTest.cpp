#include "scanner/InsightDetector.h"

#include <QLocale>
#include <QTest>

using namespace tessarine;

namespace {

struct ExtensionFigures {
    const char* ext;
    qint64 fileCount;
    qint64 totalSize;
};

QHash<QString, ExtensionStats> extensions(std::initializer_list<ExtensionFigures> figures) {
    QHash<QString, ExtensionStats> map;
    for (const ExtensionFigures& figure : figures) {
        ExtensionStats stats;
        stats.ext = QString::fromLatin1(figure.ext);
        stats.category = categoryForExtension(stats.ext);
        stats.fileCount = figure.fileCount;
        stats.totalSize = figure.totalSize;
        map.insert(stats.ext, stats);
    }
    return map;
}

QStringList titles(const QList<PatternInsight>& insights) {
    QStringList list;
    for (const PatternInsight& insight : insights)
        list.append(insight.title);
    return list;
}

} // namespace

class InsightDetectorTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void nodeModulesNeedsBothExtensionsManyFilesAndAShare();
    void deepNestingCountsFilesBelowTenLevels();
    void cacheNeedsMoreThanOneHundredMegabytes();
    void rulesComeInFixedOrder();
};

void InsightDetectorTest::nodeModulesNeedsBothExtensionsManyFilesAndAShare() {
    const std::map<qint64, DepthStats> noDepths;
    // Without any json entry the rule does not apply, however many js files there are.
    QVERIFY(detectInsights(extensions({{"js", 5000, 900}}), noDepths, 1000).isEmpty());
    // Exactly a tenth of the bytes is not enough; just over it is.
    QVERIFY(detectInsights(extensions({{"js", 600, 600}, {"json", 401, 400}}), noDepths, 10000)
                .isEmpty());
    const QList<PatternInsight> fired =
        detectInsights(extensions({{"js", 600, 610}, {"json", 401, 400}}), noDepths, 10000);
    QCOMPARE(fired.size(), 1);
    QCOMPARE(fired[0].type, InsightType::nodeModules);
    QCOMPARE(fired[0].title, QStringLiteral("Possible Node Modules"));
    QCOMPARE(fired[0].description,
             QStringLiteral(
                 "Large number of JavaScript/JSON files detected, possibly from node_modules"));
    QCOMPARE(fired[0].affectedCount, 1001);
    QCOMPARE(fired[0].affectedSize, 1010);
    QVERIFY(fired[0].paths.isEmpty());
    // 1000 files are not "many"; an all-empty scan never fires.
    QVERIFY(detectInsights(extensions({{"js", 600, 900}, {"json", 400, 100}}), noDepths, 1000)
                .isEmpty());
    QVERIFY(
        detectInsights(extensions({{"js", 3000, 0}, {"json", 3000, 0}}), noDepths, 0).isEmpty());
}

void InsightDetectorTest::deepNestingCountsFilesBelowTenLevels() {
    const QHash<QString, ExtensionStats> none;
    QVERIFY(detectInsights(none, {{10, {500, 0, 5000}}}, 5000).isEmpty());
    QVERIFY(detectInsights(none, {{11, {60, 900, 10}}, {20, {40, 0, 10}}}, 20).isEmpty());

    const QList<PatternInsight> fired =
        detectInsights(none, {{3, {7, 1, 70}}, {11, {60, 2, 600}}, {25, {41, 0, 410}}}, 1080);
    QCOMPARE(fired.size(), 1);
    QCOMPARE(fired[0].type, InsightType::nodeModules);
    QCOMPARE(fired[0].title, QStringLiteral("Deeply Nested Files"));
    QCOMPARE(fired[0].description, QStringLiteral("Found 101 files at depth > 10 levels"));
    QCOMPARE(fired[0].affectedCount, 101);
    QCOMPARE(fired[0].affectedSize, 1010);
}

void InsightDetectorTest::cacheNeedsMoreThanOneHundredMegabytes() {
    const std::map<qint64, DepthStats> noDepths;
    QVERIFY(detectInsights(extensions({{"cache", 3, 60'000'000}, {"log", 2, 40'000'000}}), noDepths,
                           100'000'000)
                .isEmpty());

    // Log files count here although their category is System; other extensions never do.
    const QList<PatternInsight> fired = detectInsights(extensions({{"cache", 3, 60'000'000},
                                                                   {"log", 2, 40'000'000},
                                                                   {"tmp", 1, 1},
                                                                   {"temp", 4, 0},
                                                                   {"bak", 9, 900'000'000}}),
                                                       noDepths, 1'000'000'001);
    QCOMPARE(fired.size(), 1);
    QCOMPARE(fired[0].type, InsightType::largeCache);
    QCOMPARE(fired[0].title, QStringLiteral("Cache Files Detected"));
    QCOMPARE(fired[0].description, QStringLiteral("Found 10 cache/temp files totaling 100 MB"));
    QCOMPARE(fired[0].affectedCount, 10);
    QCOMPARE(fired[0].affectedSize, 100'000'001);
}

void InsightDetectorTest::rulesComeInFixedOrder() {
    const QList<PatternInsight> insights = detectInsights(
        extensions({{"tmp", 1, 200'000'000}, {"js", 1000, 300'000'000}, {"json", 1000, 1000}}),
        {{12, {2001, 0, 500'001'000}}}, 500'001'000);
    QCOMPARE(titles(insights),
             (QStringList{"Possible Node Modules", "Deeply Nested Files", "Cache Files Detected"}));
    QCOMPARE(insights[1].description, QStringLiteral("Found 2001 files at depth > 10 levels"));
    QVERIFY(insights[0].id != insights[1].id);
}

QTEST_GUILESS_MAIN(InsightDetectorTest)
#include "InsightDetectorTest.moc"
