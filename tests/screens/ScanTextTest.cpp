#include "screens/scanning/ScanPaths.h"
#include "screens/scanning/ScanPhaseDisplay.h"
#include "screens/scanning/Throughput.h"

#include <QLocale>
#include <QTest>

using namespace tessarine;

class ScanTextTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void throughputSwitchesUnitAtEachBinaryStep_data() {
        QTest::addColumn<qint64>("bytesPerSecond");
        QTest::addColumn<QString>("text");
        QTest::newRow("largest byte value") << qint64(1023) << "1023 B";
        QTest::newRow("one kilobyte") << qint64(1024) << "1.0 KB";
        QTest::newRow("just below a megabyte") << qint64(1048575) << "1024.0 KB";
        QTest::newRow("one gigabyte") << qint64(1073741824) << "1.00 GB";
        QTest::newRow("gigabytes keep two decimals") << qint64(5) * 1073741824 / 2 << "2.50 GB";
        QTest::newRow("a counter that went back") << qint64(-300) << "-300 B";
    }

    void throughputSwitchesUnitAtEachBinaryStep() {
        QFETCH(qint64, bytesPerSecond);
        QFETCH(QString, text);
        QCOMPARE(formatThroughput(bytesPerSecond), text);
    }

    void throughputIgnoresTheLocale() {
        // Rates are printf-formatted like the screen's other live figures ("%.0f", "%.1f"), so
        // they all keep the full stop whatever the locale.
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        const QString text = formatThroughput(2560);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(text, QStringLiteral("2.5 KB"));
    }

    void locationCrumbsKeepTheDeepestSix_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("crumbs");
        QTest::newRow("empty") << "" << QStringList{};
        QTest::newRow("root") << "/" << QStringList{};
        QTest::newRow("doubled and trailing slashes")
            << "//Users//ann/" << QStringList{"Users", "ann"};
        QTest::newRow("six pieces stay whole")
            << "/a/b/c/d/e/f" << QStringList{"a", "b", "c", "d", "e", "f"};
        QTest::newRow("seven pieces lose the first")
            << "/a/b/c/d/e/f/g" << QStringList{"b", "c", "d", "e", "f", "g"};
        QTest::newRow("relative, with spaces and accents")
            << "Mes Documents/été" << QStringList{"Mes Documents", "été"};
    }

    void locationCrumbsKeepTheDeepestSix() {
        QFETCH(QString, path);
        QFETCH(QStringList, crumbs);
        QCOMPARE(locationCrumbs(path), crumbs);
    }

    void activityEntriesTellFoldersFromFiles_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("folder");
        QTest::newRow("file with an extension") << "/x/a.txt" << false;
        QTest::newRow("name without a dot") << "/x/README" << true;
        QTest::newRow("trailing slash") << "/x/y/" << true;
        QTest::newRow("dotted folder with trailing slash") << "/x/v1.2/" << true;
        QTest::newRow("bare name") << "notes.md" << false;
        QTest::newRow("root") << "/" << true;
    }

    void activityEntriesTellFoldersFromFiles() {
        QFETCH(QString, path);
        QFETCH(bool, folder);
        QCOMPARE(looksLikeFolder(path), folder);
    }

    void phaseStepsFollowTheCurrentPhase_data() {
        QTest::addColumn<ScanPhase>("phase");
        QTest::addColumn<int>("completedSteps");
        QTest::addColumn<int>("currentStep");
        QTest::newRow("initializing") << ScanPhase::initializing << 0 << 0;
        QTest::newRow("analyzing") << ScanPhase::analyzing << 2 << 2;
        QTest::newRow("finalizing") << ScanPhase::finalizing << 4 << 4;
        QTest::newRow("complete") << ScanPhase::complete << 5 << -1;
        QTest::newRow("cancelled") << ScanPhase::cancelled << 0 << -1;
    }

    void phaseStepsFollowTheCurrentPhase() {
        QFETCH(ScanPhase, phase);
        QFETCH(int, completedSteps);
        QFETCH(int, currentStep);
        const auto steps = phaseSteps(phase);
        for (int i = 0; i < int(steps.size()); ++i) {
            QCOMPARE(steps[std::size_t(i)].phase, static_cast<ScanPhase>(i));
            QCOMPARE(steps[std::size_t(i)].completed, i < completedSteps);
            QCOMPARE(steps[std::size_t(i)].current, i == currentStep);
        }
    }
};

QTEST_GUILESS_MAIN(ScanTextTest)
#include "ScanTextTest.moc"
