#include "SampleResults.h"
#include "StandardOutputCapture.h"

#include "storage/PersistenceService.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <sys/stat.h>

using namespace tessarine;
using namespace tessarine::testing;

// History folders holding things other than history files under history file names: each must be
// passed over with the usual line, quickly and without reading it dry, and the valid result
// beside it must still load.
class HostileHistoryTest : public QObject {
    Q_OBJECT

private slots:
    void entriesThatAreNotStoredScansAreSkipped_data() {
        QTest::addColumn<QString>("kind");
        QTest::newRow("link to an endless device") << "zero";
        QTest::newRow("pipe without a writer") << "fifo";
        QTest::newRow("larger than any stored scan") << "huge";
        QTest::newRow("folder") << "folder";
    }

    void entriesThatAreNotStoredScansAreSkipped() {
        QFETCH(QString, kind);
        QTemporaryDir base;
        PersistenceService store(base.path());
        const AnalysisResult stored =
            sampleResult(QDateTime(QDate(2024, 6, 1), QTime(10, 0), QTimeZone::utc()));
        QVERIFY(!store.save(stored));
        const QString hostileName =
            QStringLiteral("scan_00000000-0000-0000-0000-000000000000.json");
        const QString hostile = QDir(store.storagePath()).filePath(hostileName);
        if (kind == u"zero") {
            QVERIFY(QFile::link(QStringLiteral("/dev/zero"), hostile));
        } else if (kind == u"fifo") {
            QCOMPARE(::mkfifo(QFile::encodeName(hostile).constData(), 0600), 0);
        } else if (kind == u"huge") {
            // Sparse: it takes no room on disk, only its size tells.
            QFile file(hostile);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.resize(qint64(1) << 32));
        } else {
            QVERIFY(QDir().mkdir(hostile));
        }

        StandardOutputCapture output;
        auto loaded = store.loadAll();
        const QString printed = QString::fromUtf8(output.finish());

        QVERIFY(std::holds_alternative<QList<AnalysisResult>>(loaded));
        const auto& results = std::get<QList<AnalysisResult>>(loaded);
        QCOMPARE(results.size(), 1);
        QCOMPARE(results.first().id, stored.id);
        QVERIFY2(printed.startsWith("Failed to load " + hostileName + ": "), qPrintable(printed));
        QCOMPARE(printed.count(u'\n'), 1);
    }
};

QTEST_GUILESS_MAIN(HostileHistoryTest)
#include "HostileHistoryTest.moc"
