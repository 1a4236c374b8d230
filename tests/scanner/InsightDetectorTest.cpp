#include "scanner/InsightDetector.h"

#include <QLocale>
#include <QTest>

using namespace tessarine;

using Extensions = QHash<QString, ExtensionStats>;
using Depths = std::map<qint64, DepthStats>;
Q_DECLARE_METATYPE(Extensions)
Q_DECLARE_METATYPE(Depths)

namespace {

// "ext:files:bytes" items separated by spaces.
Extensions extensions(const QString& figures) {
    Extensions map;
    for (const QString& item : figures.split(u' ', Qt::SkipEmptyParts)) {
        const QStringList parts = item.split(u':');
        ExtensionStats stats;
        stats.ext = parts[0];
        stats.category = categoryForExtension(stats.ext);
        stats.fileCount = parts[1].toLongLong();
        stats.totalSize = parts[2].toLongLong();
        map.insert(stats.ext, stats);
    }
    return map;
}

QStringList summaries(const QList<PatternInsight>& insights) {
    QStringList list;
    for (const PatternInsight& insight : insights)
        list.append(QStringLiteral("%1|%2|%3|%4/%5")
                        .arg(rawValue(insight.type), insight.title, insight.description)
                        .arg(insight.affectedCount)
                        .arg(insight.affectedSize));
    return list;
}

} // namespace

class InsightDetectorTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void rules_data() {
        QTest::addColumn<Extensions>("extensions");
        QTest::addColumn<Depths>("depths");
        QTest::addColumn<qint64>("totalSize");
        QTest::addColumn<QStringList>("expected"); // type|title|description|count/size
        const QString nodeModules =
            "Node Modules|Possible Node Modules|Large number of JavaScript/JSON files detected, "
            "possibly from node_modules|1001/1010";
        QTest::newRow("exactly a tenth of the bytes")
            << extensions("js:600:600 json:401:400") << Depths() << 10000LL << QStringList();
        QTest::newRow("just over a tenth") << extensions("js:600:610 json:401:400") << Depths()
                                           << 10000LL << QStringList{nodeModules};
        QTest::newRow("1000 files are not many")
            << extensions("js:600:900 json:400:100") << Depths() << 1000LL << QStringList();
        QTest::newRow("100 deep files are not many")
            << Extensions() << Depths{{11, {60, 900, 10}}, {20, {40, 0, 10}}} << 20LL
            << QStringList();
        QTest::newRow("101 deep files")
            << Extensions() << Depths{{3, {7, 1, 70}}, {11, {60, 2, 600}}, {25, {41, 0, 410}}}
            << 1080LL
            << QStringList{"Node Modules|Deeply Nested Files|Found 101 files at depth > 10 "
                           "levels|101/1010"};
        QTest::newRow("cache of exactly 100 MB") << extensions("cache:3:60000000 log:2:40000000")
                                                 << Depths() << 100'000'000LL << QStringList();
        // Log files count although their category is System; other extensions never do.
        QTest::newRow("cache over 100 MB")
            << extensions("cache:3:60000000 log:2:40000000 tmp:1:1 temp:4:0 bak:9:900000000")
            << Depths() << 1'000'000'001LL
            << QStringList{"Large Cache|Cache Files Detected|Found 10 cache/temp files totaling "
                           "100 MB|10/100000001"};
        QTest::newRow("every rule, in a fixed order")
            << extensions("tmp:1:200000000 js:1000:300000000 json:1000:1000")
            << Depths{{12, {2001, 0, 500'001'000}}} << 500'001'000LL
            << QStringList{"Node Modules|Possible Node Modules|Large number of JavaScript/JSON "
                           "files detected, possibly from node_modules|2000/300001000",
                           "Node Modules|Deeply Nested Files|Found 2001 files at depth > 10 "
                           "levels|2001/500001000",
                           "Large Cache|Cache Files Detected|Found 1 cache/temp files totaling "
                           "200 MB|1/200000000"};
    }

    void rules() {
        QFETCH(Extensions, extensions);
        QFETCH(Depths, depths);
        QFETCH(qint64, totalSize);
        QFETCH(QStringList, expected);
        const QList<PatternInsight> insights = detectInsights(extensions, depths, totalSize);
        QCOMPARE(summaries(insights), expected);
        for (const PatternInsight& insight : insights)
            QVERIFY(insight.paths.isEmpty());
    }
};

QTEST_GUILESS_MAIN(InsightDetectorTest)
#include "InsightDetectorTest.moc"
